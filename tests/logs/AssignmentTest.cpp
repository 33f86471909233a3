#include "core/LogTypes.h"
#include "logs/LogEditFixture.h"
#include "support/Cases.h"

namespace corvane::test {

TEST_F(LogEditTest, OpensForAddWithTheDomainsComputersAndTheFirstLog) {
  Host.OnModal<frmLogEdit>("frmLogEdit", [&](frmLogEdit& form) {
    Host.Pass(74);
    EXPECT_EQ(0, form.tvAlarms.Count());
    Host.OnDoEvents([&] {
      EXPECT_TRUE(form.lblWait.Visible);
      EXPECT_EQ("Please wait ... retrieving computer names...", form.lblWait.Caption);
      EXPECT_EQ(ui::Pointer::Hourglass, Window().lvwComputers.MousePointer);
    });
    Host.Pass(75);
    EXPECT_FALSE(form.lblWait.Visible || form.tmrLoad.Enabled);
    EXPECT_EQ(ui::Pointer::Default, Window().lvwComputers.MousePointer);
    EXPECT_EQ("MERDC01 Application", form.lstComputerName.Text() + " " + form.lstLogType.Text());
    for (int log = 1; log <= 6; ++log) EXPECT_EQ(LogName(log), form.lstLogType[log - 1]);
    EXPECT_FALSE(form.fraStatistics.Visible || form.fraServerStatistics.Visible);
    EXPECT_EQ("Choose Computer and Log", form.tabMain.Captions[0]);
    for (const auto& hint : Cases("logs/Hints.txt")) {
      Host.BringToFront(form.tabMain, std::stoi(hint[0]));
      EXPECT_EQ(hint[1], form.lblInfo.Caption);
    }
    Host.Click(form.cmdCancel);
  });
  Host.Click(Window().mnuFileAdd);
}

TEST_F(LogEditTest, ACustomDomainListsItsMappingsAlone) {
  std::ofstream(Console.Folder() / "cdomain.ini")
      << "[General]\r\nNumComputers=2\r\n[Computers]\r\nComputer1=192.0.2.77|BRANCH\r\nComputer2=MERAPP01|MERIDIAN\r\n";
  Window().lstDomain.AddItem("CUSTOM: BRANCH");
  Console.ChooseDomain("CUSTOM: BRANCH");
  Add([&](frmLogEdit& form) {
    EXPECT_EQ((std::vector<std::string>{"192.0.2.77"}), form.lstComputerName.All());
    AddDiskAlarm(form);
    Save(form);
  });
  EXPECT_EQ("192.0.2.771|CUSTOM: BRANCH|192.0.2.77\n",
            Console.Rows("SELECT IDName, Domain, ComputerName FROM RegisteredServers"));
  Console.ChooseDomain("MERIDIAN");
  Add([&](frmLogEdit& form) { EXPECT_EQ("MERAPP01", form.lstComputerName.All().back()); });
}

TEST_F(LogEditTest, TheSideWithTheFocusIsAddedAndWide) {
  Add([&](frmLogEdit& form) {
    const auto widths = [&] {
      std::string all;
      for (const int width : {form.tvAlarms.Width, form.lvwAlarmGroups.Width, form.lvwAlarmGroups.Columns[0].Width,
                              form.tvSelectedAlarms.Width, form.tvDenyAlarms.Width})
        all += std::to_string(width) + " ";
      return all;
    };
    // Before anything had the focus the bundles count as used; with none selected nothing comes of it.
    Host.Click(form.cmdAdd);
    EXPECT_EQ(0, form.tvSelectedAlarms.Count());
    Pick(form.lvwAlarmGroups, "Directory Replication");
    Pick(form.tvAlarms, DiskBadBlock);
    EXPECT_EQ("5865 5865 5275 2610 5865 ", widths());
    Host.Click(form.cmdAdd);
    EXPECT_EQ("Disk Bad Block", Chosen(form.tvSelectedAlarms));
    Host.Focus(form.lvwAlarmGroups);
    Host.Drop(form.tvAlarms, form.tvSelectedAlarms);
    EXPECT_EQ("Disk Bad Block, Directory Replication", Chosen(form.tvSelectedAlarms));
    form.tvSelectedAlarms.MouseMove();
    EXPECT_EQ("2610 2610 2025 5820 5865 ", widths());
  });
}

TEST_F(LogEditTest, OneMessageAboutDuplicatesForTheLifeOfTheScreen) {
  Add([&](frmLogEdit& form) {
    AddDiskAlarm(form);
    OnMessage("AlarmTwice");
    Host.Click(form.cmdAdd);
    Host.Click(form.cmdAdd);
    // The flag is shared with the ignore events and the bundles.
    Move(form.tvDenyAlarms, DiskBadBlock, form.cmdDenyAdd);
    Host.Click(form.cmdDenyAdd);
    Move(form.lvwAlarmGroups, "Directory Replication", form.cmdAdd);
    Host.Click(form.cmdAdd);
    EXPECT_EQ("Disk Bad Block, Directory Replication", Chosen(form.tvSelectedAlarms));
    EXPECT_EQ("Disk Bad Block", Chosen(form.tvSelectedDenyAlarms));
  });
  Add([&](frmLogEdit& form) {
    Move(form.lvwDenyGroups, "Directory Replication", form.cmdDenyAdd);
    OnMessage("BundleTwice");
    Host.Click(form.cmdDenyAdd);
    // A member's name counts, whatever its OS class.
    Move(form.tvDenyAlarms,
         "Windows Vista/Windows Server 2008|Directory Service|Directory Replication|Lingering Object Found",
         form.cmdDenyAdd);
    EXPECT_EQ("Directory Replication", Chosen(form.tvSelectedDenyAlarms));
  });
}

TEST_F(LogEditTest, ACategoryAddsItsAlarmsInTreeOrder) {
  Console.Rows("INSERT INTO AlarmCategories VALUES ('Empty_2', 'Empty', 2, 2)");
  Add([&](frmLogEdit& form) {
    AddDiskAlarm(form);
    Pick(form.tvAlarms, DiskErrors);
    const ui::NodeId category = form.tvAlarms.Selected();
    std::string expected = "Disk Bad Block";
    for (const ui::NodeId alarm : form.tvAlarms.ChildrenOf(category))
      if (form.tvAlarms.Node(alarm).Text != "Disk Bad Block") expected += ", " + form.tvAlarms.Node(alarm).Text;
    Host.Shut(form.tvAlarms, category);
    OnMessage("AlarmTwice");
    Host.Click(form.cmdAdd);
    EXPECT_LT(4u, form.tvSelectedAlarms.Roots().size());
    EXPECT_EQ("0001_Disk and File System_2", KeyOf(form.tvSelectedAlarms, 1));
    const std::string system = "Windows 2000/XP/2003|System";
    for (const std::string& nothing : {system + "|Empty", system, system.substr(0, 20)})
      Move(form.tvAlarms, nothing, form.cmdAdd);
    EXPECT_EQ(expected, Chosen(form.tvSelectedAlarms));
  });
}

// The first alarm of a name gives the category of the key, whichever was picked; rows that name nothing add nothing.
TEST_F(LogEditTest, TwoAlarmsOfOneNameAreOneToTheScreen) {
  Console.Rows(
      "INSERT INTO Alarms (Name, AlarmCategory, TypeMask, EventID, MatchEntireDescription, ThresholdCount, "
      "ThresholdTimeout) VALUES ('Disk Bad Block', 'General Events_3', 4, 7, 0, 0, 0)");
  Add([&](frmLogEdit& form) {
    Move(form.tvAlarms, "Windows Vista/Windows Server 2008|Application|General Events|Disk Bad Block", form.cmdAdd);
    EXPECT_EQ("0000_Disk and File System_3", KeyOf(form.tvSelectedAlarms, 0));
  });
  WatchSystemLogOf("MERFILE01");
  Console.Rows(
      "INSERT INTO AlarmsForLogs (IDName, Domain, AlarmID) SELECT 'MERFILE012', 'MERIDIAN', MAX(AlarmID) FROM Alarms");
  Console.Rows(ReadTextFile(CORVANE_SOURCE_DIR "/tests/logs/Attachments.txt"));
  OnMessage("AlarmTwice");
  Edit([&](frmLogEdit& form) {
    EXPECT_EQ("Disk Bad Block", Chosen(form.tvSelectedAlarms));
    ASSERT_EQ(1, form.lvwActiveNotifications.Count());
    EXPECT_EQ(Desk, form.lvwActiveNotifications.Item(0).Text);
    Save(form);
  });
  EXPECT_EQ("Disk and File System_2\n",
            Console.Rows("SELECT AlarmCategory FROM AlarmsForLogs JOIN Alarms USING (AlarmID)"));
}

TEST_F(LogEditTest, AMemberCannotBeRemovedWithoutItsBundle) {
  Add([&](frmLogEdit& form) {
    Move(form.lvwAlarmGroups, "Directory Replication", form.cmdAdd);
    AddDiskAlarm(form);
    ui::TreeView& chosen = form.tvSelectedAlarms;
    const ui::NodeId bundle = chosen.Roots()[0];
    Host.ClickNode(chosen, chosen.ChildrenOf(bundle)[0]);
    EXPECT_FALSE(form.cmdDown.Enabled);
    Host.ClickNode(chosen, bundle);
    Host.Click(form.cmdDown);
    EXPECT_EQ("Disk Bad Block", Chosen(chosen));
    EXPECT_EQ(1, chosen.Count());
    // The count in front of a key comes again, and in the same category the add then fails on it without a word.
    Move(form.tvAlarms, DiskErrors + "|Disk Paging Error", form.cmdAdd);
    Host.ClickNode(chosen, chosen.Roots()[0]);
    Host.Click(form.cmdDown);
    Move(form.tvAlarms, DiskBadBlock, form.cmdAdd);
    EXPECT_EQ("Disk Paging Error", Chosen(chosen).substr(0, 17));
  });
}

TEST_F(LogEditTest, NotificationsMoveUnderTheirRules) {
  Add([&](frmLogEdit& form) {
    ui::ListView& available = form.lvwNotifications;
    ui::ListView& attached = form.lvwActiveNotifications;
    const auto counts = [&](ui::CommandButton& button) {
      Host.Click(button);
      return std::to_string(available.SelectedCount()) + " chosen, " + std::to_string(attached.SelectedCount()) +
             " of " + std::to_string(attached.Count());
    };
    ASSERT_EQ(3, available.Count());
    EXPECT_EQ(Desk, available.Item(0).Text);
    EXPECT_EQ((std::vector<std::string>{"", "", "X", "", ""}), available.Item(0).SubItems);
    Pick(available, Desk);
    Host.Drop(available, attached);
    for (int row = 0; row < 3; ++row) available.Select(row);
    EXPECT_EQ("2 chosen, 0 of 1", counts(form.cmdNotAdd));
    EXPECT_EQ("2 chosen, 0 of 3", counts(form.cmdNotAdd));
    EXPECT_EQ("2 chosen, 0 of 3", counts(form.cmdNotDown));
    for (int row = 0; row < 2; ++row) attached.Select(row);
    OnMessage("RemoveNotifications", "2", ui::MsgResult::No);
    EXPECT_EQ("2 chosen, 2 of 3", counts(form.cmdNotDown));
    OnMessage("RemoveNotifications", "2", ui::MsgResult::Yes);
    EXPECT_EQ("2 chosen, 0 of 1", counts(form.cmdNotDown));
    attached.Select(0);
    EXPECT_EQ("2 chosen, 0 of 0", counts(form.cmdNotDown));
  });
}

}  // namespace corvane::test
