#include "alarms/ExchangeFixture.h"

namespace corvane::test {

// Bundles first, then what they have not brought; a "=" moves the numbers, a line break ends the line.
TEST_F(ExchangeTest, WritesWhatIsChosenToTheByte) {
  Run("Exchange.txt");
  frmAlarmExport form(Main);
  Choose(form);
  ui::TreeView& chosen = form.tvSelectedAlarms;
  AddBundle(form, 0);
  Host.ClickNode(chosen, chosen.ChildrenOf(chosen.Roots()[0])[0]);
  EXPECT_FALSE(form.cmdDown.Enabled) << "a member";
  Host.ClickNode(chosen, chosen.Roots()[0]);
  Host.Click(form.cmdDown);
  Add(form, Disks);
  // A removed alarm comes back, although the count in front of its key would come again.
  Host.ClickNode(chosen, chosen.Roots()[0]);
  Host.Click(form.cmdDown);
  Host.Drop(form.tvAlarms, chosen);
  EXPECT_EQ("0004_Disks_2", chosen.Node(chosen.Roots()[3]).Key);
  for (const int bundle : {0, 1, 2, 3}) AddBundle(form, bundle);
  // A bundle is refused each time, an alarm is passed over, one of another OS class is another.
  for (int time = 0; time < 2; ++time) {
    OnMessage("BundleTwice");
    AddBundle(form, 0);
  }
  Add(form, {"ALARM\\2\\Disks_2\\Full"});
  Add(form, {"OS\\3", "LOGTYPE\\3\\2", "ALARMCAT\\3\\Disks_3"});
  // A file that cannot be written is told, and the screen stays open.
  std::filesystem::remove(File);
  std::filesystem::create_directory(File);
  Finish(form, form.cmdOK, "ExportFailure", "75\nDescription:  Path/File access error: C:\\Corvane\\alarms.ini");
  std::filesystem::remove(File);
  Finish(form, form.cmdOK, "Exported");
  std::string expected;
  for (const auto& line : Cases("alarms/Exported.txt", {{"477 x", std::string(477, 'x')}}))
    expected += line[0] + "\r\n";
  EXPECT_EQ(expected, ReadTextFile(File));
}

TEST_F(ExchangeTest, NothingIsChosenBeforeTheFile) {
  Write("[Alarms]\r\n");
  frmAlarmExport form(Main);
  OnMessage("ExportFailure", "75\nDescription:  The file C:\\Gone\\a.ini could not be created.");
  Choose(form, "C:\\Gone\\a.ini");
  const ui::TreeView& chosen = form.tvSelectedAlarms;
  EXPECT_EQ("Please select a file first.", chosen.Node(chosen.Roots()[0]).Text);
  EXPECT_EQ(0, form.tvAlarms.Count() + form.lvwAlarmGroups.Count());
  EXPECT_FALSE(form.cmdAdd.Enabled || form.cmdDown.Enabled);
  for (int count : {1, 0}) {
    OnMessage("ChooseAlarms");
    Host.Click(form.cmdOK);
    EXPECT_EQ(count, chosen.Count());
    Choose(form);
    EXPECT_EQ(0U, std::filesystem::file_size(File)) << "emptied";
  }
}

// Behind the 30000th character of a section nothing is counted: the lines there take each other's place.
TEST_F(ExchangeTest, TellsAFileOfMoreThan30000Bytes) {
  Run("Exchange.txt");
  Run("Full.txt");
  for (const std::uintmax_t size : {30000U, 30001U, 30881U}) {
    if (size == 30001) Console.Rows("UPDATE Alarms SET Description = Description || 'x' WHERE Name = 'A168'");
    if (size == 30881) Run("FourMore.txt");
    frmAlarmExport form(Main);
    Choose(form);
    Add(form, Disks);
    if (size > 30000) OnMessage("FileTooLong");
    Finish(form, form.cmdOK, "Exported");
    EXPECT_EQ(size, std::filesystem::file_size(File));
  }
}

}  // namespace corvane::test
