#pragma once

#include <string>

#include "support/TestConsole.h"

namespace corvane::test {

/// Number of the row of a name, read past the console.
inline std::string Id(TestConsole& console, const std::string& table, const std::string& name) {
  const std::string rows = console.Rows("SELECT [Index] FROM " + table + " WHERE Name = '" + name + "'");
  return rows.substr(0, rows.find('\n'));
}

inline std::string AlarmId(TestConsole& console, const std::string& name, const std::string& category) {
  const std::string rows =
      console.Rows("SELECT AlarmID FROM Alarms WHERE Name = '" + name + "' AND AlarmCategory = '" + category + "'");
  return rows.substr(0, rows.find('\n'));
}

/// The two record counters of a log, as the insert writes them.
inline std::string Counters(TestConsole& console, const std::string& idName) {
  const std::string rows = console.Rows(
      "SELECT FirstCounter || ', ' || SecondCounter FROM RegisteredServers WHERE IDName = '" + idName + "'");
  return rows.substr(0, rows.find('\n'));
}

/// All rows that make up the watched logs.
inline std::string AllRows(TestConsole& console) {
  std::string all;
  for (const char* table : {"RegisteredServers", "AlarmsForLogs", "DenyAlarmsForLogs", "AlarmGroupsForLogs",
                            "DenyAlarmGroupsForLogs", "NotificationsForLogs"})
    all += std::string(table) + "\n" + console.Rows(std::string("SELECT * FROM ") + table);
  return all;
}

}  // namespace corvane::test
