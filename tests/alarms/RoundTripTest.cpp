#include "alarms/ExchangeFixture.h"

namespace corvane::test {

TEST_F(ExchangeTest, AnEmptyCatalogueBecomesTheOneThatWasWritten) {
  std::vector<std::string> files;
  const auto write = [&](const std::function<void(frmAlarmExport&)>& choose) {
    frmAlarmExport form(Main);
    Choose(form);
    choose(form);
    Finish(form, form.cmdOK, "Exported");
    files.push_back(ReadTextFile(File));
  };
  const auto read = [&](const std::string& file) {
    Write(file);
    frmAlarmImport form(Main);
    Choose(form);
    Host.Click(form.cmdImport);
    EXPECT_TRUE(form.IsUnloaded());
  };
  // Every row, but for the numbers that the database assigns.
  const auto catalogue = [&] {
    return Console.Rows(
        "CREATE TEMP TABLE Copy AS SELECT * FROM Alarms; UPDATE Copy SET AlarmID = 0; SELECT * FROM Copy ORDER BY 4, 2;"
        "SELECT * FROM AlarmCategories ORDER BY 1; SELECT g.Name, a.Name, AlarmCategory FROM AlarmsInGroups JOIN "
        "AlarmGroups g ON g.[Index] = AlarmGroupID JOIN Alarms a USING (AlarmID) ORDER BY 1, 3, 2");
  };
  Console.Rows(
      "UPDATE Alarms SET NotificationName = 'Duty Desk Popup' WHERE AlarmID % 2; INSERT INTO Alarms (Name, "
      "Description, AlarmCategory) SELECT 'Very long', printf('%.*c', 500, 'x'), MIN(AlarmCategory) FROM Alarms");
  for (int log = 0; log < 3 * 6; ++log) {
    if (log >= 3 && log < 6) continue;  // logs that the first OS class does not have
    const std::string os = std::to_string(log / 6 + 1), key = "LOGTYPE\\" + os + "\\" + std::to_string(log % 6 + 1);
    write([&](frmAlarmExport& form) {
      for (const std::string& branch : {"OS\\" + os, key}) Host.Open(form.tvAlarms, form.tvAlarms.Find(branch));
      for (const ui::NodeId category : form.tvAlarms.ChildrenOf(form.tvAlarms.Find(key)))
        Add(form, {form.tvAlarms.Node(category).Key});
    });
  }
  for (int bundle = 0, count = 1; bundle < count;)
    write([&](frmAlarmExport& form) {
      count = form.lvwAlarmGroups.Count();
      for (const int end = std::min(bundle + 7, count); bundle < end; ++bundle) AddBundle(form, bundle);
    });
  const std::string whole = catalogue();
  Run("RoundTrip.txt");
  const std::string expected = catalogue();
  EXPECT_LT(expected.size() + 500, whole.size());
  Console.Rows("DELETE FROM Alarms; DELETE FROM AlarmCategories; DELETE FROM AlarmGroups; DELETE FROM AlarmsInGroups");
  Host.ToAnyBox = ui::MsgResult::Yes;
  for (const std::string& file : files) read(file);
  EXPECT_EQ(expected, catalogue());
}

}  // namespace corvane::test
