#include "alarms/ExchangeFixture.h"

namespace corvane::test {

class RoundTripTest : public ExchangeTest {
 protected:
  using Choice = std::function<void(frmAlarmExport&)>;

  /// Writes a file of its own and keeps its bytes.
  void ExportTo(std::vector<std::string>& files, const Choice& choose) {
    frmAlarmExport form(Main);
    form.Load();
    ChooseFile(form);
    choose(form);
    if (form.tvSelectedAlarms.Count() == 0) return;
    Export(form);
    files.push_back(ReadTextFile(File()));
    EXPECT_GE(30000U, files.back().size());
  }
  void AddCategories(frmAlarmExport& form, const std::string& os, const std::string& logType) {
    Host.Open(form.tvAlarms, form.tvAlarms.Find("OS\\" + os));
    const ui::NodeId log = form.tvAlarms.Find("LOGTYPE\\" + os + "\\" + logType);
    if (log == 0) return;
    Host.Open(form.tvAlarms, log);
    for (const ui::NodeId category : form.tvAlarms.ChildrenOf(log)) Add(form, {form.tvAlarms.Node(category).Key});
  }
  /// Reads a file; what is there already is overwritten.
  void Import(const std::string& file, bool isThere) {
    Write(file);
    frmAlarmImport form(Main);
    form.Load();
    ChooseFile(form);
    for (const ui::ListItem& item : form.lvwItemsToImport.Items())
      if (isThere) OnMessage("Overwrite", item.Text, ui::MsgResult::Yes);
    OnMessage("Imported");
    Host.Click(form.cmdImport);
  }
  /// Every row but for the numbers that the database assigns.
  std::string Catalogue() {
    return Console.Rows(
        "CREATE TEMP TABLE Numbered AS SELECT * FROM Alarms; UPDATE Numbered SET AlarmID = 0;"
        "SELECT * FROM Numbered ORDER BY AlarmCategory, Name; SELECT * FROM AlarmCategories ORDER BY [Index];"
        "SELECT g.Name, a.Name, AlarmCategory FROM AlarmsInGroups i JOIN AlarmGroups g ON g.[Index] = AlarmGroupID "
        "JOIN Alarms a USING (AlarmID) ORDER BY 1, 3, 2");
  }
};

TEST_F(RoundTripTest, AnEmptyCatalogueBecomesTheOneThatWasWritten) {
  Console.Rows(
      "UPDATE Alarms SET NotificationName = 'Duty Desk Popup' WHERE AlarmID % 2; INSERT INTO Alarms (Name, "
      "Description, AlarmCategory) SELECT 'Very long', printf('%.*c', 500, 'x'), MIN(AlarmCategory) FROM Alarms");
  std::vector<std::string> singles, bundles;
  for (const char* os : {"1", "2", "3"})
    for (const char* log : {"1", "2", "3", "4", "5", "6"})
      ExportTo(singles, [&](frmAlarmExport& form) { AddCategories(form, os, log); });
  int bundle = 0;
  for (bool isLast = false; !isLast;)
    ExportTo(bundles, [&](frmAlarmExport& form) {
      for (const int end = bundle + 7; bundle < end && bundle < form.lvwAlarmGroups.Count();) AddBundle(form, bundle++);
      isLast = bundle == form.lvwAlarmGroups.Count();
    });
  const std::string whole = Catalogue();
  Run("RoundTrip.txt");
  const std::string expected = Catalogue();
  EXPECT_LT(expected.size() + 500, whole.size());
  Console.Rows("DELETE FROM Alarms; DELETE FROM AlarmCategories; DELETE FROM AlarmGroups; DELETE FROM AlarmsInGroups");
  for (const std::string& file : singles) Import(file, false);
  for (const std::string& file : bundles) Import(file, true);
  EXPECT_EQ(expected, Catalogue());
}

}  // namespace corvane::test
