#include "app/installation/TextFile.h"
#include "support/Cases.h"
#include "support/ConsoleTest.h"

namespace corvane::test {

class MainWindowTest : public ConsoleTest {
 protected:
  MainWindowTest() { Console.Start(); }

  /// The cells of the list in the order shown, rows parted by line breaks.
  std::string Shown(std::initializer_list<int> columns = {0, 1}) {
    std::string all;
    for (const ui::ListItem& item : Window().lvwComputers.Items()) {
      for (const int column : columns) all += (column == *columns.begin() ? "" : "|") + item.Cell(column);
      all += "\n";
    }
    return all;
  }
  void Refresh() { Host.Click(Window().mnuViewRefresh); }
};

TEST_F(MainWindowTest, ListsTheLogsOfTheDomainThatAreNotMarkedAndSelectsTheRowOfBothKeysAgain) {
  for (const auto& [computer, log] : {std::pair("merb", 3), {"MERA", 4}, {"MERA", 1}, {"MERC", 9}})
    Watch(computer, log);
  Watch("MERD", 1, "MERIDIAN", true);
  Watch("HBRA", 6, "HARBOR");
  const char* const cases[][3] = {{"mera", "DNS SERVER", "MERA4"}, {"MERC", "", ""}};
  for (const auto& [name, detail, selected] : cases) {
    Main.SelectedName = name;
    Main.SelectedDetail = detail;
    Refresh();
    EXPECT_EQ("1 " + std::string(selected),
              std::to_string(Window().lvwComputers.SelectedCount()) + " " + Window().CurrentIDName());
  }
  EXPECT_EQ("MERA|Application\nMERA|DNS Server\nmerb|Security\nMERC|\n", Shown());
  EXPECT_EQ("4 log(s) watched by Corvane", Panel(0));
  Console.ChooseDomain("HARBOR");
  EXPECT_EQ("HBRA|File Replication Service\n", Shown());
  Console.ChooseDomain("DEPOT");
  EXPECT_EQ("0 log(s) watched by Corvane", Panel(0));
  EXPECT_TRUE(Window().lvwComputers.MultiSelect());
}

// Alarms count singly and through bundles; a table that fails takes away its own count and no row.
TEST_F(MainWindowTest, CountsWhatIsAttachedAndAFailingTableLeavesTheRows) {
  for (const char* computer : {"MERA", "MERB"}) Watch(computer, 2);
  Console.Rows(ReadTextFile(CORVANE_SOURCE_DIR "/tests/console/Attachments.txt"));
  const char* const cases[][2] = {{"FROM AlarmsForLogs", "MERA|9|1\nMERB|0|0\n"},
                                  {"FROM NotificationsForLogs", "MERA|10|0\nMERB|0|0\n"},
                                  {"AlarmsInGroups", "MERA||1\nMERB||0\n"},
                                  {"FROM RegisteredServers", ""},
                                  {"nothing", "MERA|10|1\nMERB|0|0\n"}};
  for (const auto& [failing, shown] : cases) {
    Console.Data.Fails = [name = failing](const std::string& sql) { return sql.find(name) != sql.npos; };
    Refresh();
    EXPECT_EQ(shown, Shown({0, 4, 5})) << failing;
    EXPECT_EQ(std::to_string(Window().lvwComputers.Count()) + " log(s) watched by Corvane", Panel(0));
  }
}

TEST_F(MainWindowTest, StatisticsFillTheirCellsAndNoOthers) {
  std::string expected = "|0 sec(s)||\n";
  for (int log = 1; log <= 5; ++log) Watch("MERA", log);
  for (const auto& c : Cases("console/Statistics.txt")) {
    SetStatistics("MERA" + c[0], {{"LastCheck", c[1]}, {"ScanTime", c[2]}});
    expected.insert(0, c[3] + "\n");
  }
  Refresh();
  EXPECT_EQ(expected, Shown({2, 3, 6, 7}));
  EXPECT_EQ(0, Window().lvwComputers.Columns[6].Width + Window().lvwComputers.Columns[7].Width);
}

TEST_F(MainWindowTest, TheFirstClickOnAColumnSortsDescending) {
  const char* const statistics[][3] = {
      {"MERA", "1_1_2026_9_0_0", "100"}, {"MERB", "1_2_2026_8_0_0", "9"}, {"MERC", "1_1_2026_22_0_0", "20"}};
  for (const auto& [computer, lastCheck, scanTime] : statistics) {
    Watch(computer, 1);
    SetStatistics(std::string(computer) + "1", {{"LastCheck", lastCheck}, {"ScanTime", scanTime}});
  }
  Watch("MERB", 2);
  Refresh();
  for (const auto& c : Cases("console/Sortings.txt")) {
    const int column = std::stoi(c[1]);
    if (c[0] == "click") Window().lvwComputers.ColumnClick(column);
    if (c[0] == "refresh") Refresh();
    if (c[0] == "domain")
      for (const char* domain : {"HARBOR", "MERIDIAN"}) Console.ChooseDomain(domain);
    EXPECT_EQ(c[2], Shown({column})) << c[0] << column;
  }
}

TEST_F(MainWindowTest, SyslogDevicesHaveTheirOwnListAndOrder) {
  Console.Rows("INSERT INTO SyslogDevices VALUES ('router', '10.0.0.9'), ('Firewall', '10.0.0.10')");
  Host.BringToFront(Window().tabMain, 1);
  ui::ListView& devices = Window().lvwSyslogs;
  std::string first = devices.Item(0).Text;
  for (const int column : {0, 1, 1}) {
    devices.ColumnClick(column);
    first += " " + devices.Item(0).Cell(column);
  }
  EXPECT_EQ("Firewall router 10.0.0.9 10.0.0.10", first);
  EXPECT_FALSE(Main.ColumnSortState[0] || Main.ColumnSortState[1]);
  devices.MouseUp(ui::MouseButton::Right);
  EXPECT_EQ(1u, Host.Popups.size());
}

TEST_F(MainWindowTest, CommandsFollowTheTabAndTheSelection) {
  Watch("MERA", 1);
  frmCVMain& main = Window();
  const auto enabled = [&] {
    main.mnuFile.Click();
    std::string all;
    for (const ui::MenuItem* item : {&main.mnuFileAdd, &main.mnuFileEdit, &main.mnuFileEventViewer, &main.mnuHiddenAdd,
                                     &main.mnuHiddenEdit, &main.mnuHiddenEventViewer})
      all += item->Enabled ? "+" : "-";
    for (const char* key : {"add", "edit", "eventviewer", "refresh"})
      all += main.tbrMain.Button(key).Enabled ? "+" : "-";
    return all;
  };
  Host.BringToFront(main.tabMain, 1);
  EXPECT_EQ("---------+", enabled());
  Host.BringToFront(main.tabMain, 0);
  main.lvwComputers.MouseUp(ui::MouseButton::Right);
  main.lvwComputers.MouseUp(ui::MouseButton::Left);
  EXPECT_EQ((std::vector<ui::MenuItem*>{&main.mnuHidden}), Host.Popups);
  EXPECT_EQ("++-++-++++", enabled());
  Host.SelectOnly(main.lvwComputers, 0);
  main.lvwComputers.MouseUp(ui::MouseButton::Right);
  EXPECT_EQ("++++++++++", enabled());
}

}  // namespace corvane::test
