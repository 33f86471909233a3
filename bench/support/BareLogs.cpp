#include "support/BareLogs.h"

#include <cstdio>

namespace corvane::bench {
namespace {

constexpr int LogTypes = 6;
constexpr const char* AttachmentTables[] = {"AlarmsForLogs", "NotificationsForLogs", "AlarmGroupsForLogs",
                                            "DenyAlarmsForLogs", "DenyAlarmGroupsForLogs"};

void InsertAttachments(BareStore& store, const WatchedLog& log, const Attachments& attached) {
  const auto insert = [&](const char* table, const std::string& value) {
    store.Run(std::string("INSERT INTO ") + table + " VALUES ('" + log.IDName() + "', '" + Domain + "', '" + value +
              "')");
  };
  for (const auto& name : attached.Notifications) insert("NotificationsForLogs", name);
  insert("DenyAlarmGroupsForLogs", attached.IgnoredBundle);
  insert("DenyAlarmsForLogs", attached.Ignored.Id);
  for (const auto& bundle : attached.Bundles) insert("AlarmGroupsForLogs", bundle);
  for (const auto& alarm : attached.Alarms) insert("AlarmsForLogs", alarm.Id);
}

}  // namespace

std::string ComputerName(int number) {
  char name[16];
  std::snprintf(name, sizeof name, "BENCH%05d", number);
  return name;
}

WatchedLog::WatchedLog(int number) : Computer(ComputerName(number / LogTypes + 1)), Type(number % LogTypes + 1) {}

Attachments::Attachments(BareStore& store) {
  std::size_t next = 0;
  store.ForEach(
      "SELECT MIN(AlarmID), Name, AlarmCategory FROM Alarms WHERE AlarmID NOT IN (SELECT AlarmID FROM AlarmsInGroups) "
      "GROUP BY Name ORDER BY 1 LIMIT 9",
      [&](sqlite3_stmt* row) {
        (next < Alarms.size() ? Alarms[next] : Ignored) = {TextOf(row, 0), TextOf(row, 1), TextOf(row, 2)};
        ++next;
      });
  next = 0;
  store.ForEach("SELECT [Index] FROM AlarmGroups ORDER BY 1 LIMIT 3", [&](sqlite3_stmt* row) {
    (next < Bundles.size() ? Bundles[next] : IgnoredBundle) = TextOf(row, 0);
    ++next;
  });
  next = 0;
  store.ForEach("SELECT Name FROM Notifications ORDER BY 1 LIMIT 3",
                [&](sqlite3_stmt* row) { Notifications[next++] = TextOf(row, 0); });
}

void InsertLog(BareStore& store, const WatchedLog& log, const Attachments& attached) {
  store.Run("INSERT INTO RegisteredServers VALUES ('" + log.IDName() + "', '" + Domain + "', '" + log.Computer + "', " +
            std::to_string(log.Type) + ", 0, 0, 0, 0)");
  InsertAttachments(store, log, attached);
}

void ReplaceAttachments(BareStore& store, const WatchedLog& log, const Attachments& attached) {
  for (const char* table : AttachmentTables)
    store.Run(std::string("DELETE FROM ") + table + " WHERE IDName = '" + log.IDName() + "' AND [Domain] = '" + Domain +
              "'");
  InsertAttachments(store, log, attached);
}

std::size_t CountAttachments(BareStore& store) {
  std::size_t rows = 0;
  for (const char* table : AttachmentTables) rows += store.Walk(std::string("SELECT * FROM ") + table);
  return rows;
}

}  // namespace corvane::bench
