#include "alarms/ExchangeFixture.h"

namespace corvane::test {

// Bundles first, then what they have not brought; a "=" moves the numbers, a line break ends the line.
TEST_F(ExchangeTest, WritesWhatIsChosenToTheByte) {
  Run("Exchange.txt");
  frmAlarmExport form(Main);
  form.Load();
  ChooseFile(form);
  const std::string system = "LOGTYPE\\2\\2", disks = "ALARMCAT\\2\\Disks_2";
  Add(form, {"OS\\2", system, disks});
  for (const int bundle : {0, 1, 2, 3}) AddBundle(form, bundle);
  // Chosen again: a bundle is refused each time, an alarm is passed over, one of another class is another.
  for (int time = 0; time < 2; ++time) {
    OnMessage("BundleTwice");
    AddBundle(form, 0);
  }
  Add(form, {"OS\\2", system, disks, "ALARM\\2\\Disks_2\\Full"});
  Add(form, {"OS\\3", "LOGTYPE\\3\\2", "ALARMCAT\\3\\Disks_3"});
  Export(form);
  std::string expected;
  for (const auto& line : Cases("alarms/Exported.txt", {{"477 x", std::string(477, 'x')}}))
    expected += line[0] + "\r\n";
  EXPECT_EQ(expected, ReadTextFile(File()));
}

TEST_F(ExchangeTest, NothingIsChosenBeforeTheFile) {
  frmAlarmExport form(Main);
  form.Load();
  ui::TreeView& chosen = form.tvSelectedAlarms;
  EXPECT_EQ("Please select a file first.", chosen.Node(chosen.Roots()[0]).Text);
  EXPECT_EQ(0, form.tvAlarms.Count() + form.lvwAlarmGroups.Count());
  OnMessage("ChooseAlarms");
  Host.Click(form.cmdOK);
  Host.ClickNode(chosen, chosen.Roots()[0]);
  EXPECT_FALSE(form.cmdAdd.Enabled || form.cmdDown.Enabled);
  Write("[Alarms]\r\n");
  OnMessage("ExportFailure", "75\nDescription:  The file C:\\Gone\\a.ini could not be created.");
  ChooseFile(form, "C:\\Gone\\a.ini");
  EXPECT_EQ(1, chosen.Count());
  ChooseFile(form);
  EXPECT_EQ(0U, std::filesystem::file_size(File()));
  EXPECT_EQ(0, chosen.Count());
  OnMessage("ChooseAlarms");
  Host.Click(form.cmdOK);
}

// The number in front of a single alarm's key is given anew after a removal, and no alarm is lost by that.
TEST_F(ExchangeTest, AMemberStaysWithItsBundleAndARemovedAlarmMayComeBack) {
  Run("Exchange.txt");
  frmAlarmExport form(Main);
  form.Load();
  ChooseFile(form);
  ui::TreeView& chosen = form.tvSelectedAlarms;
  AddBundle(form, 0);
  Host.ClickNode(chosen, chosen.ChildrenOf(chosen.Roots()[0])[0]);
  EXPECT_FALSE(form.cmdDown.Enabled);
  Host.ClickNode(chosen, chosen.Roots()[0]);
  Host.Click(form.cmdDown);
  EXPECT_EQ(0, chosen.Count());
  Add(form, {"OS\\2", "LOGTYPE\\2\\2", "ALARMCAT\\2\\Disks_2"});
  Host.ClickNode(chosen, chosen.Roots()[0]);
  Host.Click(form.cmdDown);
  Host.Drop(form.tvAlarms, chosen);
  std::string texts;
  for (const ui::NodeId node : chosen.Roots()) texts += chosen.Node(node).Key + " " + chosen.Node(node).Text + "\n";
  EXPECT_EQ("0001_Disks_2 Full\n0002_Disks_2 Last\n0003_Disks_2 Long\n0004_Disks_2 Bad block\n", texts);
}

// The file may have 30000 bytes; a longer one is told, and counts as written. Behind the 30000th character of a section
// nothing is counted: the lines there take each other's place.
TEST_F(ExchangeTest, TellsAFileThatIsTooLong) {
  Run("Exchange.txt");
  const auto sizeOf = [&](int alarms, const std::string& lastLength, bool isTooLong) {
    Console.Rows(
        "DELETE FROM Alarms; WITH RECURSIVE Numbers(i) AS (SELECT 101 UNION ALL SELECT i + 1 FROM Numbers "
        "WHERE i < 100 + " +
        std::to_string(alarms) +
        ") INSERT INTO Alarms (Name, Description, AlarmCategory) "
        "SELECT 'A' || i, printf('%.*c', iif(i = 168, " +
        lastLength + ", 400), 'x'), 'Disks_2' FROM Numbers");
    frmAlarmExport form(Main);
    form.Load();
    ChooseFile(form);
    Add(form, {"OS\\2", "LOGTYPE\\2\\2", "ALARMCAT\\2\\Disks_2"});
    if (isTooLong) OnMessage("FileTooLong");
    Export(form);
    return std::filesystem::file_size(File());
  };
  EXPECT_EQ(30000U, sizeOf(68, "291", false));
  EXPECT_EQ(30001U, sizeOf(68, "292", true));
  EXPECT_EQ(sizeOf(80, "400", true), sizeOf(75, "400", true));
}

TEST_F(ExchangeTest, AFailureIsToldAndLeavesTheScreenOpen) {
  Run("Exchange.txt");
  frmAlarmExport form(Main);
  form.Load();
  ChooseFile(form);
  Add(form, {"OS\\2", "LOGTYPE\\2\\2", "ALARMCAT\\2\\Disks_2"});
  const auto fails = [&](const std::string& why) {
    OnMessage("ExportFailure", why);
    Host.Click(form.cmdOK);
    EXPECT_FALSE(form.IsUnloaded());
    EXPECT_EQ(ui::Pointer::Default, form.MousePointer);
  };
  Console.Data.FailAfter(2, "AlarmID = ");
  fails(std::to_string(errors::DataLocked) + "\nDescription:  The row is locked");
  Console.Data.Fails = {};
  std::filesystem::remove(File());
  std::filesystem::create_directory(File());
  fails("75\nDescription:  Path/File access error: C:\\Corvane\\alarms.ini");
  Console.Rows("DELETE FROM Alarms WHERE Name = 'Last'");
  fails("3021\nDescription:  The alarm Last is not in the catalogue any more.");
}

}  // namespace corvane::test
