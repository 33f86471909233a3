#include "alarms/ExchangeLine.h"
#include "alarms/frmAlarmExport.h"
#include "alarms/frmAlarmImport.h"
#include "core/SqlText.h"
#include "fuzz/Fuzz.h"
#include "support/TestConsole.h"

// The input are texts of an alarm, parted by "|". What a file can carry comes back as it was; anything else is written
// and read without a mishap.
void corvane::fuzz::Try(const std::string& input) {
  static test::TestConsole console;
  modMain& main = console.App.State();
  if (!main.ConfigConnection) console.Start();
  console.Host.ToAnyBox = ui::MsgResult::Yes;
  console.Host.Boxes.clear();
  const std::string file = console.Place.Path() / "a.ini";
  Connection& database = *main.ConfigConnection;
  const auto line = [&] {
    const auto row =
        database.Execute("SELECT Alarms.* FROM Alarms, AlarmsInGroups WHERE Alarms.AlarmID = AlarmsInGroups.AlarmID");
    return row->Eof() ? std::string() : JoinFields(*row, AlarmColumns);
  };
  std::string texts;
  for (std::size_t i = 0; i < 7; ++i) texts += ", " + QuoteSqlText(ExchangeLine(input).Find(i));
  database.BeginTrans();
  for (const char* table : {"Alarms", "AlarmsInGroups", "AlarmGroups"})
    database.Execute(std::string("DELETE FROM ") + table);
  database.Execute("INSERT INTO AlarmGroups VALUES (1, 'Bundle')");
  database.Execute("INSERT INTO AlarmsInGroups VALUES (1, 1)");
  const std::string alarmSql =
      "INSERT INTO Alarms (AlarmID, AlarmCategory, TypeMask, EventID, ThresholdCount, ThresholdTimeout, Name, "
      "Description, "
      "Source, Category, [User], Computer, EventDescription) VALUES (1, 'D_2', 31, 7, 2, 60";
  test::ErrorOf([&] { database.Execute(alarmSql + texts + ")"); });
  const std::string alarm = line();
  console.Host.OnSaveFile(file);
  frmAlarmExport writer(main);
  writer.Load();
  writer.cmdBrowse.Click();
  writer.lvwAlarmGroups.Select(0);
  writer.cmdAdd.Click();
  writer.cmdOK.Click();
  database.Execute("DELETE FROM Alarms");
  database.Execute("DELETE FROM AlarmsInGroups");
  console.Host.OnOpenFile(file);
  frmAlarmImport reader(main);
  reader.Load();
  reader.cmdBrowse.Click();
  reader.cmdImport.Click();
  const bool isPlain = std::ranges::all_of(alarm, [](char c) { return c >= ' ' && c <= '~'; });
  Require(!isPlain || alarm.size() >= 510 || alarm.starts_with(' ') || alarm.starts_with('|') || line() == alarm);
  database.RollbackTrans();
}
