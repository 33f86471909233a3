#include <sstream>

#include "alarms/ExchangeLine.h"
#include "core/SqlText.h"
#include "core/modMain.h"
#include "fuzz/ExchangeDesk.h"
#include "fuzz/Fuzz.h"

namespace corvane::fuzz {
namespace {

constexpr const char* TextColumns[] = {"Name", "Description", "Source",          "Category",
                                       "User", "Computer",    "EventDescription"};

void Empty(Connection& connection) {
  for (const char* table : {"Alarms", "AlarmsInGroups", "AlarmGroups"})
    connection.Execute(std::string("DELETE FROM ") + table);
}

// An alarm with one text a line, in a bundle. False when the catalogue refuses it.
bool Fill(Connection& connection, const std::string& texts) {
  Empty(connection);
  std::string columns =
      "AlarmID, AlarmCategory, TypeMask, EventID, MatchEntireDescription, ThresholdCount, ThresholdTimeout";
  std::string values = "1, 'D_2', 31, 7, True, 2, 60", text;
  std::istringstream lines(texts);
  for (const char* column : TextColumns) {
    if (!std::getline(lines, text)) text.clear();
    columns += std::string(", [") + column + "]";
    values += ", " + QuoteSqlText(text);
  }
  connection.Execute("INSERT INTO AlarmGroups VALUES (1, 'Bundle')");
  connection.Execute("INSERT INTO AlarmsInGroups VALUES (1, 1)");
  return test::ErrorOf([&] { connection.Execute("INSERT INTO Alarms (" + columns + ") VALUES (" + values + ")"); }) ==
         0;
}

std::string AlarmIn(Connection& connection) {
  const auto row =
      connection.Execute("SELECT Alarms.* FROM Alarms, AlarmsInGroups WHERE Alarms.AlarmID = AlarmsInGroups.AlarmID");
  return row->Eof() ? "" : JoinFields(*row, AlarmColumns);
}

// What the form of a file can carry.
bool IsPlain(const std::string& line) {
  const auto isPrintable = [](char c) { return c >= ' ' && c <= '~'; };
  return line.size() < 510 && line[0] != ' ' && line[0] != '|' && std::ranges::all_of(line, isPrintable) &&
         std::ranges::count(line, '|') == 12;
}

}  // namespace

// An alarm that a file can carry comes back as it was; any other one is written and read without a mishap.
void Try(const std::string& input) {
  static ExchangeDesk desk;
  Connection& connection = *desk.State().ConfigConnection;
  desk.Try([&] {
    if (!Fill(connection, input)) return;
    const std::string alarm = AlarmIn(connection);
    frmAlarmExport writer(desk.State());
    writer.Load();
    writer.cmdBrowse.Click();
    writer.lvwAlarmGroups.Select(0);
    writer.cmdAdd.Click();
    writer.cmdOK.Click();
    Require(writer.IsUnloaded());
    Empty(connection);
    frmAlarmImport reader(desk.State());
    reader.Load();
    reader.cmdBrowse.Click();
    reader.cmdImport.Click();
    Require(!IsPlain(alarm) || AlarmIn(connection) == alarm);
  });
}

}  // namespace corvane::fuzz
