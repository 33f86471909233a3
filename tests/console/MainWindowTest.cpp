#include <gtest/gtest.h>

#include "platform/RuntimeError.h"
#include "support/LogRows.h"
#include "support/TestConsole.h"

namespace corvane::test {
namespace {

class MainWindowTest : public ::testing::Test {
 protected:
  MainWindowTest() { console.Start(); }

  frmCVMain& Window() { return console.Window(); }
  ScriptedHost& Host() { return console.Host; }

  void Register(const std::string& computer, int log, const std::string& domain = "MERIDIAN", bool deleted = false) {
    console.Rows("INSERT INTO RegisteredServers VALUES ('" + computer + std::to_string(log) + "', '" + domain + "', '" +
                 computer + "', " + std::to_string(log) + ", 0, " + (deleted ? "1" : "0") + ", 0, 0)");
  }
  void SetStatistics(const std::string& idName, const std::string& lastCheck, const std::string& scanTime) {
    const char* key = "Software\\Tarnwick\\Corvane\\Statistics";
    Reghack& settings = console.App.State().Registry;
    settings.CreateNewKey(key, registry::LocalMachine);
    settings.SetKeyValue(key, idName + "_LastCheck", lastCheck, registry::String);
    settings.SetKeyValue(key, idName + "_ScanTime", scanTime, registry::String);
  }
  /// The cells of the list in the order shown, rows parted by line breaks.
  std::string Shown(std::initializer_list<int> columns = {0, 1}) {
    std::string all;
    for (const ui::ListItem& item : Window().lvwComputers.Items()) {
      for (const int column : columns) all += (column == *columns.begin() ? "" : "|") + item.Cell(column);
      all += "\n";
    }
    return all;
  }
  std::string Count() { return Window().stbMain.Panels[0].Text; }
  void Refresh() { Host().Click(Window().mnuViewRefresh); }
  void ClickColumn(int column) { Window().lvwComputers.ColumnClick(column); }

  TestConsole console;
};

TEST_F(MainWindowTest, ListsTheLogsOfTheDomainThatAreNotMarked) {
  Register("merb", 3);
  Register("MERA", 4);
  Register("MERA", 1);
  Register("MERC", 9);
  Register("MERD", 1, "MERIDIAN", true);
  Register("HBRA", 6, "HARBOR");
  Refresh();
  EXPECT_EQ("MERA|Application\nMERA|DNS Server\nmerb|Security\nMERC|\n", Shown());
  EXPECT_EQ("4 log(s) watched by Corvane", Count());
  console.ChooseDomain("HARBOR");
  EXPECT_EQ("HBRA|File Replication Service\n", Shown());
  console.ChooseDomain("DEPOT");
  EXPECT_EQ("0 log(s) watched by Corvane", Count());
  EXPECT_TRUE(Window().lvwComputers.MultiSelect());
}

TEST_F(MainWindowTest, CountsAlarmsSinglyAndThroughBundles) {
  Register("MERA", 2);
  Register("MERB", 2);
  const std::string row = " VALUES ('mera2', 'MERIDIAN', ";
  const std::string disk = AlarmId(console, "Disk Bad Block", "Disk and File System_2");
  // One alarm in two attached bundles, one of them attached twice, and once on its own.
  console.Rows("INSERT INTO AlarmGroups (Name) VALUES ('Other')");
  const std::string other = Id(console, "AlarmGroups", "Other");
  const std::string disks = Id(console, "AlarmGroups", "Disk and File System");
  console.Rows("INSERT INTO AlarmsInGroups (AlarmID, AlarmGroupID) VALUES (" + disk + ", " + other + ")");
  for (const std::string& bundle : {other, disks, disks})
    console.Rows("INSERT INTO AlarmGroupsForLogs (IDName, Domain, AlarmGroupID)" + row + bundle + ")");
  console.Rows("INSERT INTO AlarmsForLogs (IDName, Domain, AlarmID)" + row + disk + ")");
  console.Rows("INSERT INTO DenyAlarmsForLogs (IDName, Domain, AlarmID)" + row + disk + ")");
  console.Rows("INSERT INTO NotificationsForLogs (IDName, Domain, NotificationName)" + row + "'Duty Desk Popup')");
  Refresh();
  EXPECT_EQ("MERA|10|1\nMERB|0|0\n", Shown({0, 4, 5}));
}

// A table that fails takes away its own count and no row.
TEST_F(MainWindowTest, AFailingTableLeavesTheRows) {
  Register("MERA", 2);
  console.Rows("INSERT INTO AlarmsForLogs (IDName, Domain, AlarmID) VALUES ('MERA2', 'MERIDIAN', 1)");
  console.Rows("INSERT INTO NotificationsForLogs VALUES ('MERA2', 'MERIDIAN', 'Duty Desk Popup')");
  const struct {
    const char* Failing;
    const char* Shown;
    const char* Count;
  } cases[] = {{"FROM AlarmsForLogs", "MERA|0|1\n", "1"},
               {"FROM NotificationsForLogs", "MERA|1|0\n", "1"},
               {"AlarmsInGroups", "MERA||1\n", "1"},
               {"FROM RegisteredServers", "", "0"}};
  for (const auto& one : cases) {
    console.Data.Fails = [&](const std::string& sql) { return sql.find(one.Failing) != std::string::npos; };
    Refresh();
    EXPECT_EQ(one.Shown, Shown({0, 4, 5})) << one.Failing;
    EXPECT_EQ(std::string(one.Count) + " log(s) watched by Corvane", Count());
  }
  console.Data.Fails = nullptr;
  Refresh();
  EXPECT_EQ("MERA|1|1\n", Shown({0, 4, 5}));
}

TEST_F(MainWindowTest, StatisticsFillTheirCellsAndNoOthers) {
  for (int log = 1; log <= 5; ++log) Register("MERA", log);
  SetStatistics("MERA1", "11_16_2026_0_0_7", "12");
  SetStatistics("MERA2", "11_15_2026_13_59_0", "7");
  SetStatistics("MERA3", "soon", "long");
  SetStatistics("MERA4", "", "");
  Refresh();
  EXPECT_EQ(
      "12:00:07 AM|12 sec(s)|0000.0007|000012\n01:59:00 PM|7 sec(s)|0780.3540|000007\n|long sec(s)||\n|0 sec(s)||\n"
      "|0 sec(s)||\n",
      Shown({2, 3, 6, 7}));
  EXPECT_EQ(0, Window().lvwComputers.Columns[6].Width + Window().lvwComputers.Columns[7].Width);
}

TEST_F(MainWindowTest, TheFirstClickOnAColumnSortsDescending) {
  for (const char* computer : {"MERA", "MERB", "MERC"}) Register(computer, 1);
  Register("MERB", 2);
  SetStatistics("MERA1", "1_1_2026_9_0_0", "100");
  SetStatistics("MERB1", "1_2_2026_8_0_0", "9");
  SetStatistics("MERC1", "1_1_2026_22_0_0", "20");
  Refresh();
  ClickColumn(0);
  EXPECT_EQ("MERC|Application\nMERB|Application\nMERB|System\nMERA|Application\n", Shown());
  // Another domain comes in ascending order, and the flag stays: the next click goes back to ascending.
  console.ChooseDomain("HARBOR");
  console.ChooseDomain("MERIDIAN");
  EXPECT_EQ("MERA", Window().lvwComputers.Item(0).Text);
  ClickColumn(0);
  EXPECT_EQ("MERA", Window().lvwComputers.Item(0).Text);
  ClickColumn(2);
  EXPECT_EQ("10:00:00 PM\n09:00:00 AM\n08:00:00 AM\n\n", Shown({2}));
  ClickColumn(2);
  EXPECT_EQ("\n08:00:00 AM\n09:00:00 AM\n10:00:00 PM\n", Shown({2}));
  ClickColumn(3);
  EXPECT_EQ("100 sec(s)\n20 sec(s)\n9 sec(s)\n0 sec(s)\n", Shown({3}));
  // The list keeps its own order over a refill, until the computers are clicked again.
  Refresh();
  EXPECT_EQ("100 sec(s)\n20 sec(s)\n9 sec(s)\n0 sec(s)\n", Shown({3}));
  ClickColumn(0);
  EXPECT_EQ("MERC\nMERB\nMERB\nMERA\n", Shown({0}));
}

TEST_F(MainWindowTest, TheRowOfBothKeysIsSelectedAgain) {
  Register("MERA", 1);
  Register("MERA", 2);
  console.App.State().SelectedName = "mera";
  console.App.State().SelectedDetail = "SYSTEM";
  Refresh();
  EXPECT_EQ(1, Window().lvwComputers.SelectedCount());
  EXPECT_EQ("MERA2", Window().CurrentIDName());
  Register("MERC", 9);
  console.App.State().SelectedName = "MERC";
  console.App.State().SelectedDetail = "";
  Refresh();
  EXPECT_EQ("", Window().CurrentIDName());
}

TEST_F(MainWindowTest, SyslogDevicesHaveTheirOwnListAndOrder) {
  console.Rows("INSERT INTO SyslogDevices VALUES ('router', '10.0.0.9'), ('Firewall', '10.0.0.10')");
  Host().BringToFront(Window().tabMain, 1);
  ui::ListView& devices = Window().lvwSyslogs;
  ASSERT_EQ(2, devices.Count());
  EXPECT_EQ("Firewall", devices.Item(0).Text);
  EXPECT_EQ("2 syslog device(s) accepted by Corvane", Count());
  devices.ColumnClick(0);
  EXPECT_EQ("router", devices.Item(0).Text);
  devices.ColumnClick(1);
  EXPECT_EQ("10.0.0.9", devices.Item(0).Cell(1));
  devices.ColumnClick(1);
  EXPECT_EQ("10.0.0.10", devices.Item(0).Cell(1));
  EXPECT_FALSE(console.App.State().ColumnSortState[0] || console.App.State().ColumnSortState[1]);
  devices.MouseUp(ui::MouseButton::Right);
  EXPECT_EQ(1u, Host().Popups.size());
}

TEST_F(MainWindowTest, CommandsFollowTheTabAndTheSelection) {
  Register("MERA", 1);
  Host().BringToFront(Window().tabMain, 1);
  for (const ui::MenuItem* item : {&Window().mnuFileAdd, &Window().mnuFileEdit, &Window().mnuFileEventViewer,
                                   &Window().mnuHiddenAdd, &Window().mnuHiddenEdit, &Window().mnuHiddenEventViewer})
    EXPECT_FALSE(item->Enabled) << item->Name();
  for (const char* key : {"add", "edit", "eventviewer"}) EXPECT_FALSE(Window().tbrMain.Button(key).Enabled) << key;
  EXPECT_TRUE(Window().tbrMain.Button("refresh").Enabled);
  Window().mnuFile.Click();
  EXPECT_FALSE(Window().mnuFileEventViewer.Enabled);

  Host().BringToFront(Window().tabMain, 0);
  EXPECT_TRUE(Window().tbrMain.Button("eventviewer").Enabled && Window().mnuHiddenEdit.Enabled);
  Window().mnuFile.Click();
  Window().lvwComputers.MouseUp(ui::MouseButton::Right);
  Window().lvwComputers.MouseUp(ui::MouseButton::Left);
  EXPECT_EQ((std::vector<ui::MenuItem*>{&Window().mnuHidden}), Host().Popups);
  EXPECT_FALSE(Window().mnuFileEventViewer.Enabled || Window().mnuHiddenEventViewer.Enabled);
  Host().SelectOnly(Window().lvwComputers, 0);
  Window().mnuFile.Click();
  Window().lvwComputers.MouseUp(ui::MouseButton::Right);
  EXPECT_TRUE(Window().mnuFileEventViewer.Enabled && Window().mnuHiddenEventViewer.Enabled);
}

TEST_F(MainWindowTest, CommandsOpenTheirScreens) {
  Register("MERA", 1);
  Refresh();
  Host().Press(Window().tbrMain, "edit");
  const auto cancel = [&](ui::Form& form) { form.CloseBox(); };
  for (int i = 0; i < 2; ++i) Host().OnModal("frmLogEdit", cancel);
  Host().Press(Window().tbrMain, "add");
  EXPECT_TRUE(console.App.State().IsNewLog);
  Host().SelectOnly(Window().lvwComputers, 0);
  Host().Click(Window().mnuHiddenEdit);
  EXPECT_FALSE(console.App.State().IsNewLog);
  EXPECT_EQ("MERA", console.App.State().SelectedName);
  EXPECT_EQ("Application", console.App.State().SelectedDetail);
  Host().OnBox("The Event Viewer could not be started on this computer.");
  Host().Press(Window().tbrMain, "eventviewer");
  Host().OnModal<frmStartup>("frmStartup", [&](frmStartup& about) {
    EXPECT_FALSE(about.prgStartup.Visible || about.lblProgress.Visible);
    EXPECT_EQ("Version:  1.0.0", about.lblVersion.Caption);
    EXPECT_EQ("Username: kbrandt", about.lblStartupInfo[0].Caption);
    EXPECT_EQ("Computer: CVCONSOLE1", about.lblStartupInfo[1].Caption);
    EXPECT_NE(std::string::npos, about.lblCopyright.Caption.find("2026"));
    about.Click();
  });
  Host().Click(Window().mnuHelpAbout);
  Host().Click(Window().mnuHelpCVHelpFile);
  EXPECT_EQ((std::vector<int>{0}), Host().HelpTopics);
  EXPECT_THROW(Host().Click(Window().mnuFileExit), ui::ProgramEnd);
  EXPECT_TRUE(Host().HelpTopics.empty());
  EXPECT_EQ(nullptr, console.App.State().ConfigConnection);
}

}  // namespace
}  // namespace corvane::test
