#include "logs/LogEditFixture.h"
#include "platform/RuntimeError.h"

namespace corvane::test {

// All rows that make up the watched logs.
constexpr const char* AllRows =
    "SELECT * FROM RegisteredServers; SELECT * FROM AlarmsForLogs; SELECT * FROM DenyAlarmsForLogs;"
    "SELECT * FROM AlarmGroupsForLogs; SELECT * FROM DenyAlarmGroupsForLogs; SELECT * FROM NotificationsForLogs";

TEST_F(LogEditTest, AddWritesAllRowsInTheirOrderAndSelectsTheNewLog) {
  Add([&](frmLogEdit& form) {
    ChooseSystemLogOf(form, "MerFile01");
    Move(form.lvwNotifications, Desk, form.cmdNotAdd);
    Move(form.lvwNotifications, "Operations by Mail", form.cmdNotAdd);
    Move(form.tvDenyAlarms, "Windows 2000/XP/2003|System|Everyday Noise|Document Printed", form.cmdDenyAdd);
    Move(form.lvwDenyGroups, "Everyday Noise to Ignore", form.cmdDenyAdd);
    AddDiskAlarm(form);
    Move(form.lvwAlarmGroups, "Account and Group Changes", form.cmdAdd);
    Console.Data.Forget();
    Save(form);
  });
  ExpectChanges("Added.txt");
  EXPECT_EQ("2026-11-16-14-5-9", Console.Setting("LastDBUpdate"));
  EXPECT_EQ("MerFile012", Window().CurrentIDName());
  EXPECT_EQ("2", Window().lvwComputers.Item(0).Cell(5));
  EXPECT_EQ("1 log(s) watched by Corvane", Panel(0));
}

TEST_F(LogEditTest, EditFindsAllAsItWasLeftAndRewritesTheAttachmentsOnly) {
  WatchSystemLogOf("MERFILE01");
  Edit([&](frmLogEdit& form) {
    EXPECT_EQ("Statistics", form.tabMain.Captions[0]);
    EXPECT_EQ("View monitoring statistics about the current log.", form.lblInfo.Caption);
    EXPECT_EQ("MERFILE01 System", form.lstComputerName.Text() + " " + form.lstLogType.Text());
    EXPECT_FALSE(form.lstComputerName.Enabled || form.lstLogType.Enabled || form.lblWait.Visible);
    EXPECT_TRUE(form.fraStatistics.Visible && form.fraServerStatistics.Visible);
    EXPECT_EQ("0000_Disk and File System_2", KeyOf(form.tvSelectedAlarms, 0));
    Move(form.lvwAlarmGroups, "Disk and File System", form.cmdAdd);
    Console.Data.Forget();
    Console.System.Clock = [] { return MakeDateTime(2026, 1, 2, 3, 4, 5); };
    Save(form);
  });
  ExpectChanges("Rewritten.txt");
  EXPECT_EQ("2026-1-2-3-4-5", Console.Setting("LastDBUpdate"));
}

TEST_F(LogEditTest, RefusalsWriteNothingAndLeaveTheScreenOpen) {
  WatchSystemLogOf("MERFILE01");
  const std::string before = Console.Rows(AllRows);
  Main.SaveSetting("LastDBUpdate", "untouched");
  Add([&](frmLogEdit& form) {
    Move(form.lvwNotifications, Desk, form.cmdNotAdd);
    Save(form, "NoAlarm");
    ChooseSystemLogOf(form, "merfile01");
    AddDiskAlarm(form);
    Save(form, "WatchedAlready", "merfile01");
    // An older system cannot read the logs of newer computers.
    Host.Type(form.lstComputerName, "MERDC01");
    Main.HasChannelApi = false;
    Save(form, "NewerLog");
    EXPECT_EQ(Desk, form.lvwActiveNotifications.Item(0).Text);
  });
  Edit([&](frmLogEdit& form) {
    Host.ClickNode(form.tvSelectedAlarms, form.tvSelectedAlarms.Roots()[0]);
    Host.Click(form.cmdDown);
    Save(form, "NoAlarm");
  });
  // The list shows neither a row that waits for its deletion nor those of another domain; the key is computer and log.
  Console.Rows("UPDATE RegisteredServers SET DeleteMe = 1");
  Host.Click(Window().mnuViewRefresh);
  EXPECT_EQ(0, Window().lvwComputers.Count());
  WatchSystemLogOf("MERFILE01", "InsertFailed");
  Console.Rows("UPDATE RegisteredServers SET DeleteMe = 0");
  Console.ChooseDomain("HARBOR");
  WatchSystemLogOf("MERFILE01", "InsertFailed");
  EXPECT_EQ(before, Console.Rows(AllRows));
  EXPECT_EQ("untouched", Console.Setting("LastDBUpdate"));
  for (const ShownBox& box : Host.Boxes) EXPECT_EQ("Corvane", box.Title);
}

// What stays after a failure at each statement: all that ran before it, and no stamp.
TEST_F(LogEditTest, AnInsertThatFailsHalfWayLeavesWhatItWrote) {
  const std::string tables[] = {"RegisteredServers", "NotificationsForLogs", "DenyAlarmGroupsForLogs",
                                "AlarmGroupsForLogs"};
  Main.SaveSetting("LastDBUpdate", "untouched");
  for (int failing = 0; failing < 4; ++failing) {
    Add([&](frmLogEdit& form) {
      Host.Type(form.lstComputerName, "PC" + std::to_string(failing));
      Move(form.lvwNotifications, Desk, form.cmdNotAdd);
      Move(form.lvwDenyGroups, "Everyday Noise to Ignore", form.cmdDenyAdd);
      Move(form.lvwAlarmGroups, "Disk and File System", form.cmdAdd);
      Console.Data.FailAfter(failing, "INSERT");
      Save(form, "InsertFailed");
      Console.Data.Fails = nullptr;
    });
    for (int i = 0; i < 4; ++i)
      EXPECT_EQ(i < failing ? "1\n" : "0\n", Console.Rows("SELECT COUNT(*) FROM " + tables[i] + " WHERE IDName = 'PC" +
                                                          std::to_string(failing) + "1'"))
          << tables[i] << " after failure " << failing;
  }
  EXPECT_EQ("untouched", Console.Setting("LastDBUpdate"));
  EXPECT_EQ("ok\n", Console.Rows("PRAGMA integrity_check"));
}

TEST_F(LogEditTest, AnUpdateThatFailsIsRepairedByTheNextOne) {
  WatchSystemLogOf("MERFILE01");
  const std::string before = Console.Rows(AllRows);
  for (int failing = 0; failing < 6; ++failing)
    Edit([&](frmLogEdit& form) {
      Console.Data.FailAfter(failing, "MERFILE012");
      Save(form, "UpdateFailed");
      Console.Data.Fails = nullptr;
      EXPECT_EQ(failing == 0 ? "1\n" : "0\n", Console.Rows("SELECT COUNT(*) FROM AlarmsForLogs"));
      Save(form);
      EXPECT_EQ(before, Console.Rows(AllRows));
    });
}

// A main window that has lost its list.
class BrokenWindow : public frmCVMain {
 public:
  using frmCVMain::frmCVMain;
  const ui::ListView& WatchedLogs() const override { throw RuntimeError(errors::NoObject, "Object not set"); }
};

// Texts go in as they stand: an apostrophe fails the statement, and without a computer the digit alone is the key.
TEST_F(LogEditTest, ErrorsOfTheSaveAreToldAndTheComputerGoesInAsItWasEntered) {
  cvbTAPI pager(Main, Main.Platform.Phones);
  BrokenWindow broken(Main, pager);
  Add([&](frmLogEdit& form) {
    AddDiskAlarm(form);
    Main.CVMain = &broken;
    Save(form, "SaveError");
    Main.CVMain = &Window();
    Host.Type(form.lstComputerName, "O'Hara");
    Save(form, "InsertFailed");
    Host.Type(form.lstComputerName, "");
    // An alarm that is gone at the save is an error of that save.
    Console.Rows("DELETE FROM Alarms WHERE Name = 'Disk Bad Block'");
    Save(form, "InsertFailed");
  });
  EXPECT_EQ("1|MERIDIAN||1|0|0|1997|1\n", Console.Rows("SELECT * FROM RegisteredServers"));
}

}  // namespace corvane::test
