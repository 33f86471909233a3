#include "core/PrivateProfile.h"
#include "logs/LogEditFixture.h"
#include "support/LogRows.h"

namespace corvane::test {
namespace {

constexpr const char* AlarmTwice = "You cannot add an alarm or ignore event twice!";
constexpr const char* BundleTwice = "You cannot add an alarm bundle twice!";

TEST_F(LogEditTest, OpensForAddWithTheDomainsComputersAndTheFirstLog) {
  Host().OnModal<frmLogEdit>("frmLogEdit", [&](frmLogEdit& form) {
    Host().Pass(74);
    EXPECT_EQ(0, form.tvAlarms.Count());
    Host().OnDoEvents([&] {
      EXPECT_TRUE(form.lblWait.Visible);
      EXPECT_EQ("Please wait ... retrieving computer names...", form.lblWait.Caption);
      EXPECT_EQ(ui::Pointer::Hourglass, Window().MousePointer);
      EXPECT_EQ(ui::Pointer::Hourglass, Window().lvwComputers.MousePointer);
    });
    Host().Pass(75);
    EXPECT_FALSE(form.lblWait.Visible || form.tmrLoad.Enabled);
    EXPECT_EQ(ui::Pointer::Default, Window().lvwComputers.MousePointer);
    EXPECT_EQ("MERDC01", form.lstComputerName.Text());
    EXPECT_EQ("Application", form.lstLogType.Text());
    EXPECT_FALSE(form.fraStatistics.Visible || form.fraServerStatistics.Visible);
    EXPECT_EQ("Choose Computer and Log", form.tabMain.Captions[0]);
    Host().Click(form.cmdCancel);
  });
  Host().Click(Window().mnuFileAdd);
}

TEST_F(LogEditTest, ACustomDomainListsItsMappingsAlone) {
  PrivateProfile mappings(console.Ports.Profiles, console.Ports.Files);
  mappings.FileName = "C:\\Corvane\\cdomain.ini";
  mappings.WriteString("Computers", "Computer1", "192.0.2.77|BRANCH");
  mappings.WriteString("Computers", "Computer2", "MERAPP01|MERIDIAN");
  mappings.WriteString("General", "NumComputers", "2");
  Window().lstDomain.AddItem("CUSTOM: BRANCH");
  console.ChooseDomain("CUSTOM: BRANCH");
  Add([&](frmLogEdit& form) {
    EXPECT_EQ((std::vector<std::string>{"192.0.2.77"}), form.lstComputerName.All());
    AddDiskAlarm(form);
    Host().Click(form.cmdOK);
  });
  EXPECT_EQ("192.0.2.771|CUSTOM: BRANCH|192.0.2.77\n",
            console.Rows("SELECT IDName, Domain, ComputerName FROM RegisteredServers"));
  console.ChooseDomain("MERIDIAN");
  Add([&](frmLogEdit& form) { EXPECT_EQ("MERAPP01", form.lstComputerName.All().back()); });
}

TEST_F(LogEditTest, HintsFollowTheTabs) {
  const std::vector<std::string> hints{
      "Select the computer and event log type you wish to monitor.",
      "Select events you wish to ignore by dragging alarms or alarm bundles to the left.",
      "Select the events that will trigger notifications by dragging alarms or alarm bundles to the left.",
      "Select notifications that will be performed when alarms are detected by dragging notifications to the left."};
  Add([&](frmLogEdit& form) {
    for (int tab = 3; tab >= 0; --tab) {
      Host().BringToFront(form.tabMain, tab);
      EXPECT_EQ(hints[static_cast<std::size_t>(tab)], form.lblInfo.Caption);
    }
  });
  WatchSystemLogOf("MERFILE01");
  Edit(0,
       [&](frmLogEdit& form) { EXPECT_EQ("View monitoring statistics about the current log.", form.lblInfo.Caption); });
}

TEST_F(LogEditTest, TheSideWithTheFocusIsAddedAndWide) {
  Add([&](frmLogEdit& form) {
    // Before anything had the focus the bundles count as used; with none selected nothing comes of it.
    Host().Click(form.cmdAdd);
    EXPECT_EQ(0, form.tvSelectedAlarms.Count());
    PickRow(form.lvwAlarmGroups, "Directory Replication");
    PickAlarm(form.tvAlarms, DiskBadBlock);
    EXPECT_EQ(5865, form.tvAlarms.Width);
    EXPECT_EQ(2610, form.tvSelectedAlarms.Width);
    EXPECT_EQ(5275, form.lvwAlarmGroups.Columns[0].Width);
    Host().Click(form.cmdAdd);
    EXPECT_EQ("Disk Bad Block", Chosen(form.tvSelectedAlarms));
    Host().Focus(form.lvwAlarmGroups);
    Host().Drop(form.tvAlarms, form.tvSelectedAlarms);
    EXPECT_EQ("Disk Bad Block, Directory Replication", Chosen(form.tvSelectedAlarms));
    form.tvSelectedAlarms.MouseMove();
    EXPECT_EQ(2610, form.lvwAlarmGroups.Width);
    EXPECT_EQ(5820, form.tvSelectedAlarms.Width);
    EXPECT_EQ(2025, form.lvwAlarmGroups.Columns[0].Width);
    EXPECT_EQ(5865, form.tvDenyAlarms.Width);
  });
}

TEST_F(LogEditTest, OneMessageAboutDuplicatesForTheLifeOfTheScreen) {
  Add([&](frmLogEdit& form) {
    AddDiskAlarm(form);
    Host().OnBox(AlarmTwice);
    Host().Click(form.cmdAdd);
    Host().Click(form.cmdAdd);
    // The flag is shared with the ignore events and the bundles.
    PickAlarm(form.tvDenyAlarms, DiskBadBlock);
    Host().Click(form.cmdDenyAdd);
    Host().Click(form.cmdDenyAdd);
    PickRow(form.lvwAlarmGroups, "Directory Replication");
    Host().Click(form.cmdAdd);
    Host().Click(form.cmdAdd);
    EXPECT_EQ("Disk Bad Block, Directory Replication", Chosen(form.tvSelectedAlarms));
    EXPECT_EQ("Disk Bad Block", Chosen(form.tvSelectedDenyAlarms));
  });
  Add([&](frmLogEdit& form) {
    PickRow(form.lvwDenyGroups, "Directory Replication");
    Host().Click(form.cmdDenyAdd);
    Host().OnBox(BundleTwice);
    Host().Click(form.cmdDenyAdd);
    // A member's name counts, whatever its OS class.
    PickAlarm(form.tvDenyAlarms, {"Windows Vista/Windows Server 2008", "Directory Service", "Directory Replication",
                                  "Lingering Object Found"});
    Host().Click(form.cmdDenyAdd);
    EXPECT_EQ("Directory Replication", Chosen(form.tvSelectedDenyAlarms));
  });
}

TEST_F(LogEditTest, ACategoryAddsItsAlarmsInTreeOrder) {
  console.Rows("INSERT INTO AlarmCategories VALUES ('Empty_2', 'Empty', 2, 2)");
  Add([&](frmLogEdit& form) {
    AddDiskAlarm(form);
    PickAlarm(form.tvAlarms, {"Windows 2000/XP/2003", "System", "Disk and File System"});
    const ui::NodeId category = form.tvAlarms.Selected();
    std::vector<std::string> expected{"Disk Bad Block"};
    for (const ui::NodeId alarm : form.tvAlarms.ChildrenOf(category))
      if (form.tvAlarms.Node(alarm).Text != "Disk Bad Block") expected.push_back(form.tvAlarms.Node(alarm).Text);
    ASSERT_GT(expected.size(), 4u);
    Host().Shut(form.tvAlarms, category);
    Host().OnBox(AlarmTwice);
    Host().Click(form.cmdAdd);
    std::vector<std::string> chosen;
    for (const ui::NodeId node : form.tvSelectedAlarms.Roots()) chosen.push_back(form.tvSelectedAlarms.Node(node).Text);
    EXPECT_EQ(expected, chosen);
    EXPECT_EQ("0001_Disk and File System_2", form.tvSelectedAlarms.Node(form.tvSelectedAlarms.Roots()[1]).Key);
    for (const std::vector<std::string>& nothing : {std::vector<std::string>{"Windows 2000/XP/2003", "System", "Empty"},
                                                    {"Windows 2000/XP/2003", "System"},
                                                    {"Windows 2000/XP/2003"}}) {
      PickAlarm(form.tvAlarms, nothing);
      Host().Click(form.cmdAdd);
    }
    EXPECT_EQ(expected.size(), form.tvSelectedAlarms.Roots().size());
  });
}

// The first alarm of a name gives the category of the key, whichever was picked.
TEST_F(LogEditTest, TwoAlarmsOfOneNameAreOneToTheScreen) {
  console.Rows(
      "INSERT INTO Alarms (Name, AlarmCategory, TypeMask, EventID, MatchEntireDescription, ThresholdCount, "
      "ThresholdTimeout) VALUES ('Disk Bad Block', 'General Events_3', 4, 7, 0, 0, 0)");
  const std::string first = AlarmId(console, "Disk Bad Block", "Disk and File System_2");
  const std::string second = AlarmId(console, "Disk Bad Block", "General Events_3");
  Add([&](frmLogEdit& form) {
    PickAlarm(form.tvAlarms, {"Windows Vista/Windows Server 2008", "Application", "General Events", "Disk Bad Block"});
    Host().Click(form.cmdAdd);
    EXPECT_EQ("0000_Disk and File System_3", form.tvSelectedAlarms.Node(form.tvSelectedAlarms.Roots()[0]).Key);
  });
  WatchSystemLogOf("MERFILE01");
  console.Rows("INSERT INTO AlarmsForLogs (IDName, Domain, AlarmID) VALUES ('MERFILE012', 'MERIDIAN', " + second + ")");
  Host().OnBox(AlarmTwice);
  Edit(0, [&](frmLogEdit& form) {
    EXPECT_EQ("Disk Bad Block", Chosen(form.tvSelectedAlarms));
    Host().Click(form.cmdOK);
  });
  EXPECT_EQ(first + "\n", console.Rows("SELECT AlarmID FROM AlarmsForLogs"));
}

TEST_F(LogEditTest, AMemberCannotBeRemovedWithoutItsBundle) {
  Add([&](frmLogEdit& form) {
    PickRow(form.lvwAlarmGroups, "Directory Replication");
    Host().Click(form.cmdAdd);
    AddDiskAlarm(form);
    ui::TreeView& chosen = form.tvSelectedAlarms;
    const ui::NodeId bundle = chosen.Roots()[0];
    Host().ClickNode(chosen, chosen.ChildrenOf(bundle)[0]);
    EXPECT_FALSE(form.cmdDown.Enabled);
    Host().ClickNode(chosen, bundle);
    Host().Click(form.cmdDown);
    EXPECT_EQ("Disk Bad Block", Chosen(chosen));
    EXPECT_EQ(1, chosen.Count());
    // The count in front of a key comes again, and in the same category the add then fails on it without a word.
    PickAlarm(form.tvAlarms, {"Windows 2000/XP/2003", "System", "Disk and File System", "Disk Paging Error"});
    Host().Click(form.cmdAdd);
    Host().ClickNode(chosen, chosen.Roots()[0]);
    Host().Click(form.cmdDown);
    PickAlarm(form.tvAlarms, DiskBadBlock);
    Host().Click(form.cmdAdd);
    EXPECT_EQ("Disk Paging Error", Chosen(chosen).substr(0, 17));
  });
}

TEST_F(LogEditTest, NotificationsMoveUnderTheirRules) {
  Add([&](frmLogEdit& form) {
    ui::ListView& available = form.lvwNotifications;
    ui::ListView& attached = form.lvwActiveNotifications;
    ASSERT_EQ(3, available.Count());
    EXPECT_EQ("Duty Desk Popup", available.Item(0).Text);
    EXPECT_EQ((std::vector<std::string>{"", "", "X", "", ""}), available.Item(0).SubItems);
    PickRow(available, "Duty Desk Popup");
    Host().Drop(available, attached);
    for (int row = 0; row < 3; ++row) available.Select(row);
    Host().Click(form.cmdNotAdd);
    EXPECT_EQ(1, attached.Count());
    EXPECT_EQ(2, available.SelectedCount());
    Host().Click(form.cmdNotAdd);
    ASSERT_EQ(3, attached.Count());
    EXPECT_EQ(0, attached.SelectedCount());
    Host().Click(form.cmdNotDown);
    for (int row = 0; row < 2; ++row) attached.Select(row);
    const char* question = "Are you sure you want to remove 2 notifications from this monitoring profile?";
    Host().OnBox(question, ui::MsgResult::No);
    Host().Click(form.cmdNotDown);
    EXPECT_EQ(3, attached.Count());
    Host().OnBox(question, ui::MsgResult::Yes);
    Host().Click(form.cmdNotDown);
    EXPECT_EQ(ui::MsgButtons::YesNo, Host().Boxes.back().Buttons);
    ASSERT_EQ(1, attached.Count());
    attached.Select(0);
    Host().Click(form.cmdNotDown);
    EXPECT_EQ(0, attached.Count());
  });
}

TEST_F(LogEditTest, AttachedRowsThatNameNothingAddNothing) {
  WatchSystemLogOf("MERFILE01");
  console.Rows(
      "INSERT INTO AlarmsForLogs (IDName, Domain, AlarmID) VALUES ('MERFILE012', 'MERIDIAN', 99999);"
      "INSERT INTO AlarmGroupsForLogs (IDName, Domain, AlarmGroupID) VALUES ('MERFILE012', 'MERIDIAN', 99999);"
      "INSERT INTO NotificationsForLogs (IDName, Domain, NotificationName) VALUES ('MERFILE012', 'MERIDIAN', 'Gone')");
  // Attachments are read by the key of the log alone: those of a row in another domain show too.
  console.Rows("INSERT INTO NotificationsForLogs VALUES ('MERFILE012', 'ELSEWHERE', 'Duty Desk Popup')");
  Edit(0, [&](frmLogEdit& form) {
    EXPECT_EQ("Disk Bad Block", Chosen(form.tvSelectedAlarms));
    ASSERT_EQ(1, form.lvwActiveNotifications.Count());
    EXPECT_EQ("Duty Desk Popup", form.lvwActiveNotifications.Item(0).Text);
  });
}

}  // namespace
}  // namespace corvane::test
