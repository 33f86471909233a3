#include "logs/LogEditFixture.h"
#include "core/LogTypes.h"
#include "platform/RuntimeError.h"
#include "support/LogRows.h"

namespace corvane::test {
namespace {

constexpr const char* InsertFailed =
    "Corvane could not successfully insert this log for monitoring in the log monitoring database.  A duplicate record "
    "pending deletion may exist in the database.  Please wait a minute, and try again.";
constexpr const char* UpdateFailed =
    "Corvane could not successfully update this entry in the log monitoring database.  The record may be locked.  "
    "Please wait a minute, and try again.";

TEST_F(LogEditTest, AddWritesAllRowsInTheirOrderAndSelectsTheNewLog) {
  Add([&](frmLogEdit& form) {
    Host().Type(form.lstComputerName, "MerFile01");
    Host().Choose(form.lstLogType, 1);
    PickRow(form.lvwNotifications, "Duty Desk Popup");
    Host().Click(form.cmdNotAdd);
    PickRow(form.lvwNotifications, "Operations by Mail");
    Host().Click(form.cmdNotAdd);
    PickAlarm(form.tvDenyAlarms, {"Windows 2000/XP/2003", "System", "Everyday Noise", "Document Printed"});
    Host().Click(form.cmdDenyAdd);
    PickRow(form.lvwDenyGroups, "Everyday Noise to Ignore");
    Host().Click(form.cmdDenyAdd);
    AddDiskAlarm(form);
    PickRow(form.lvwAlarmGroups, "Account and Group Changes");
    Host().Click(form.cmdAdd);
    console.Data.Forget();
    Host().Click(form.cmdOK);
  });
  const std::string head = "'MerFile012', 'MERIDIAN', ";
  const std::string noise = Id(console, "AlarmGroups", "Everyday Noise to Ignore");
  const std::string accounts = Id(console, "AlarmGroups", "Account and Group Changes");
  const std::string disk = AlarmId(console, "Disk Bad Block", "Disk and File System_2");
  // The single ignore event stands in the bundle too: the bundle wins, and it is not written.
  EXPECT_EQ((std::vector<std::string>{
                "INSERT INTO RegisteredServers VALUES (" + head + "'MerFile01', 2, 0, 0, " +
                    Counters(console, "MerFile012") + ")",
                "INSERT INTO NotificationsForLogs ([IDName], [Domain], NotificationName) VALUES (" + head +
                    "'Duty Desk Popup')",
                "INSERT INTO NotificationsForLogs ([IDName], [Domain], NotificationName) VALUES (" + head +
                    "'Operations by Mail')",
                "INSERT INTO DenyAlarmGroupsForLogs ([IDName], [Domain], AlarmGroupID) VALUES (" + head + noise + ")",
                "INSERT INTO AlarmGroupsForLogs ([IDName], [Domain], AlarmGroupID) VALUES (" + head + accounts + ")",
                "INSERT INTO AlarmsForLogs ([IDName], [Domain], AlarmID) VALUES (" + head + disk + ")"}),
            console.Data.Changes());
  EXPECT_EQ("2026-11-16-14-5-9", console.Setting("LastDBUpdate"));
  EXPECT_EQ(0, Window().lvwComputers.SelectedRow());
  EXPECT_EQ("MerFile012", Window().CurrentIDName());
  EXPECT_EQ("2", Window().lvwComputers.Item(0).Cell(5));
  EXPECT_EQ("1 log(s) watched by Corvane", Window().stbMain.Panels[0].Text);
}

TEST_F(LogEditTest, EditFindsAllAsItWasLeftAndRewritesTheAttachmentsOnly) {
  WatchSystemLogOf("MERFILE01");
  const std::string server = console.Rows("SELECT * FROM RegisteredServers");
  Edit(0, [&](frmLogEdit& form) {
    EXPECT_EQ("Statistics", form.tabMain.Captions[0]);
    EXPECT_EQ("MERFILE01", form.lstComputerName.Text());
    EXPECT_EQ("System", form.lstLogType.Text());
    EXPECT_FALSE(form.lstComputerName.Enabled || form.lstLogType.Enabled || form.lblWait.Visible);
    EXPECT_TRUE(form.fraStatistics.Visible && form.fraServerStatistics.Visible);
    EXPECT_EQ("Disk Bad Block", Chosen(form.tvSelectedAlarms));
    EXPECT_EQ("0000_Disk and File System_2", form.tvSelectedAlarms.Node(form.tvSelectedAlarms.Roots()[0]).Key);
    PickRow(form.lvwAlarmGroups, "Disk and File System");
    Host().Click(form.cmdAdd);
    console.Data.Forget();
    console.System.Clock = [] { return MakeDateTime(2026, 1, 2, 3, 4, 5); };
    Host().Click(form.cmdOK);
  });
  const std::vector<std::string> changes = console.Data.Changes();
  const char* tables[] = {"AlarmsForLogs", "NotificationsForLogs", "AlarmGroupsForLogs", "DenyAlarmsForLogs",
                          "DenyAlarmGroupsForLogs"};
  ASSERT_EQ(6u, changes.size());
  for (std::size_t i = 0; i < 5; ++i)
    EXPECT_EQ(std::string("DELETE FROM ") + tables[i] + " WHERE IDName = 'MERFILE012' AND [Domain] = 'MERIDIAN'",
              changes[i]);
  EXPECT_EQ("INSERT INTO AlarmGroupsForLogs ([IDName], [Domain], AlarmGroupID) VALUES ('MERFILE012', 'MERIDIAN', " +
                Id(console, "AlarmGroups", "Disk and File System") + ")",
            changes[5]);
  EXPECT_EQ(server, console.Rows("SELECT * FROM RegisteredServers"));
  EXPECT_EQ("2026-1-2-3-4-5", console.Setting("LastDBUpdate"));
  // Reopened, the alarm shows below the bundle alone.
  Edit(0, [&](frmLogEdit& form) {
    EXPECT_EQ("Disk and File System", Chosen(form.tvSelectedAlarms));
    EXPECT_NE(0, Child(form.tvSelectedAlarms, form.tvSelectedAlarms.Roots()[0], "Disk Bad Block"));
  });
}

TEST_F(LogEditTest, RefusalsWriteNothingAndLeaveTheScreenOpen) {
  WatchSystemLogOf("MERFILE01");
  const std::string before = AllRows(console);
  console.App.State().SaveSetting("LastDBUpdate", "untouched");
  Add([&](frmLogEdit& form) {
    PickRow(form.lvwNotifications, "Duty Desk Popup");
    Host().Click(form.cmdNotAdd);
    Host().OnBox("You must select at least one alarm to associate with this log.");
    Host().Click(form.cmdOK);
    Host().Type(form.lstComputerName, "merfile01");
    Host().Choose(form.lstLogType, 1);
    AddDiskAlarm(form);
    Host().OnBox(
        "The System log is already being monitored on merfile01.  Please choose a computer and log which are not "
        "already being monitored by Corvane.");
    Host().Click(form.cmdOK);
    EXPECT_FALSE(form.IsUnloaded());
    EXPECT_EQ(ui::Pointer::Default, form.MousePointer);
    EXPECT_EQ("Duty Desk Popup", form.lvwActiveNotifications.Item(0).Text);
  });
  Edit(0, [&](frmLogEdit& form) {
    Host().ClickNode(form.tvSelectedAlarms, form.tvSelectedAlarms.Roots()[0]);
    Host().Click(form.cmdDown);
    Host().OnBox("You must select at least one alarm to associate with this log.");
    Host().Click(form.cmdOK);
  });
  EXPECT_EQ(before, AllRows(console));
  EXPECT_EQ("untouched", console.Setting("LastDBUpdate"));
  for (const ShownBox& box : Host().Boxes) {
    EXPECT_EQ("Corvane", box.Title);
    EXPECT_EQ(ui::MsgIcon::Exclamation, box.Icon);
    EXPECT_EQ(ui::MsgButtons::Ok, box.Buttons);
  }
}

TEST_F(LogEditTest, OnlyTheOldRoutineSaysDirectoryServer) {
  EXPECT_EQ("Directory Server", ConvNumToLogType(5));
  EXPECT_EQ("", ConvNumToLogType(0) + ConvNumToLogType(7));
  Add([&](frmLogEdit& form) {
    for (int log = 1; log <= 6; ++log)
      EXPECT_EQ(log != 5, ConvNumToLogType(log) == form.lstLogType[log - 1]) << log;
    EXPECT_EQ("Directory Service", form.lstLogType[4]);
  });
}

TEST(LogEditOnAnOlderSystem, RefusesTheLogsOfNewerComputersBeforeAnythingIsWritten) {
  TestConsole console;
  console.System.Version = 5;
  console.Start();
  console.Host.OnModal<frmLogEdit>("frmLogEdit", [&](frmLogEdit& form) {
    console.Host.Pass(75);
    console.Host.Type(form.lstComputerName, "MERDC01");
    console.Host.SelectOnly(form.lvwAlarmGroups, 0);
    console.Host.Click(form.cmdAdd);
    console.Host.OnBox(
        "You cannot monitor Microsoft Windows Vista, Windows Server 2008, or later EVTX format logs from legacy "
        "operating systems.  To do so, please install Corvane on a Microsoft Vista or later operating system.");
    console.Data.Forget();
    console.Host.Click(form.cmdOK);
    EXPECT_TRUE(console.Data.Changes().empty());
    console.Host.Click(form.cmdCancel);
  });
  console.Host.Click(console.Window().mnuFileAdd);
}

TEST_F(LogEditTest, ARowThatWaitsForItsDeletionIsMetByTheInsert) {
  WatchSystemLogOf("MERFILE01");
  console.Rows("UPDATE RegisteredServers SET DeleteMe = 1");
  Host().Click(Window().mnuViewRefresh);
  EXPECT_EQ(0, Window().lvwComputers.Count());
  Add([&](frmLogEdit& form) {
    Host().Type(form.lstComputerName, "MERFILE01");
    Host().Choose(form.lstLogType, 1);
    AddDiskAlarm(form);
    Host().OnBox(InsertFailed);
    Host().Click(form.cmdOK);
  });
}

// What stays after a failure at each statement: all that ran before it, and no stamp.
TEST_F(LogEditTest, AnInsertThatFailsHalfWayLeavesWhatItWrote) {
  const char* tables[] = {"RegisteredServers", "NotificationsForLogs", "DenyAlarmGroupsForLogs", "AlarmGroupsForLogs"};
  console.App.State().SaveSetting("LastDBUpdate", "untouched");
  for (int failing = 0; failing < 4; ++failing) {
    Add([&](frmLogEdit& form) {
      Host().Type(form.lstComputerName, "PC" + std::to_string(failing));
      PickRow(form.lvwNotifications, "Duty Desk Popup");
      Host().Click(form.cmdNotAdd);
      PickRow(form.lvwDenyGroups, "Everyday Noise to Ignore");
      Host().Click(form.cmdDenyAdd);
      PickRow(form.lvwAlarmGroups, "Disk and File System");
      Host().Click(form.cmdAdd);
      console.Data.FailAfter(failing, "INSERT");
      Host().OnBox(InsertFailed);
      Host().Click(form.cmdOK);
      console.Data.Fails = nullptr;
    });
    for (int i = 0; i < 4; ++i)
      EXPECT_EQ(i < failing ? "1\n" : "0\n", console.Rows(std::string("SELECT COUNT(*) FROM ") + tables[i] +
                                                          " WHERE IDName LIKE 'PC" + std::to_string(failing) + "%'"))
          << tables[i] << " after failure " << failing;
  }
  EXPECT_EQ("untouched", console.Setting("LastDBUpdate"));
  EXPECT_EQ("ok\n", console.Rows("PRAGMA integrity_check"));
}

TEST_F(LogEditTest, AnUpdateThatFailsIsRepairedByTheNextOne) {
  WatchSystemLogOf("MERFILE01");
  const std::string before = AllRows(console);
  for (int failing = 0; failing < 6; ++failing)
    Edit(0, [&](frmLogEdit& form) {
      console.Data.Forget();
      console.Data.Fails = [count = failing](const std::string& sql) mutable {
        return !sql.starts_with("SELECT") && count-- == 0;
      };
      Host().OnBox(UpdateFailed);
      Host().Click(form.cmdOK);
      console.Data.Fails = nullptr;
      EXPECT_EQ(failing == 0 ? "1\n" : "0\n", console.Rows("SELECT COUNT(*) FROM AlarmsForLogs"));
      Host().Click(form.cmdOK);
      EXPECT_TRUE(form.IsUnloaded());
      EXPECT_EQ(before, AllRows(console));
    });
}

TEST_F(LogEditTest, AnAlarmThatIsGoneAtTheSaveIsAnErrorOfThatSave) {
  Add([&](frmLogEdit& form) {
    AddDiskAlarm(form);
    console.Rows("DELETE FROM Alarms WHERE Name = 'Disk Bad Block'");
    Host().OnBox(InsertFailed);
    Host().Click(form.cmdOK);
  });
}

// A main window that has lost its list.
class BrokenWindow : public MainWindow {
 public:
  void RefillLogs() override {}
  void RefillSyslogs() override {}
  explicit BrokenWindow(MainWindow& real) : real_(real) {}
  ui::ComboBox& DomainBox() override { return real_.DomainBox(); }
  const ui::ListView& WatchedLogs() const override { throw RuntimeError(errors::NoObject, "Object not set"); }
  std::string CurrentIDName() const override { return real_.CurrentIDName(); }
  const ui::ImageList& Images() const override { return real_.Images(); }
  void SetPointer(ui::Pointer pointer) override { real_.SetPointer(pointer); }

 private:
  MainWindow& real_;
};

TEST_F(LogEditTest, AnyOtherErrorOfTheSaveShowsItsNumberAndDescription) {
  BrokenWindow broken(Window());
  Add([&](frmLogEdit& form) {
    AddDiskAlarm(form);
    console.App.State().CVMain = &broken;
    Host().OnBox("The following error has occurred.\nNumber:  91\nDescription:  Object not set");
    Host().Click(form.cmdOK);
    console.App.State().CVMain = &Window();
    EXPECT_EQ(ui::Pointer::Default, form.MousePointer);
  });
}

// Texts go in as they stand: an apostrophe fails the statement, and an empty computer leaves the digit alone as the
// key.
TEST_F(LogEditTest, TheComputerGoesInAsItWasEntered) {
  Add([&](frmLogEdit& form) {
    AddDiskAlarm(form);
    Host().Type(form.lstComputerName, "O'Hara");
    Host().OnBox(InsertFailed);
    Host().Click(form.cmdOK);
    Host().Type(form.lstComputerName, "");
    Host().Click(form.cmdOK);
  });
  EXPECT_EQ("1|MERIDIAN||1|0|0|1997|1\n", console.Rows("SELECT * FROM RegisteredServers"));
}

// The key is the computer and the log alone: the same log in another domain passes the list and fails in the store.
TEST_F(LogEditTest, ALogOfAnotherDomainIsRefusedByTheStoreOnly) {
  WatchSystemLogOf("MERFILE01");
  console.ChooseDomain("HARBOR");
  Add([&](frmLogEdit& form) {
    Host().Type(form.lstComputerName, "MERFILE01");
    Host().Choose(form.lstLogType, 1);
    AddDiskAlarm(form);
    Host().OnBox(InsertFailed);
    Host().Click(form.cmdOK);
  });
}

}  // namespace
}  // namespace corvane::test
