#include <chrono>
#include <thread>

#include "app/installation/TextFile.h"
#include "core/ConfigDatabase.h"
#include "support/ChildProcess.h"
#include "support/ConsoleTest.h"

namespace corvane::test {

constexpr const char* Attached[] = {"AlarmsForLogs", "NotificationsForLogs", "AlarmGroupsForLogs", "DenyAlarmsForLogs",
                                    "DenyAlarmGroupsForLogs"};

static bool IsUpdate(const std::string& sql) { return sql.starts_with("UPDATE"); }

class LogDeletionTest : public ConsoleTest {
 protected:
  /// Puts logs under watch, each with one row in every table of attachments, and attaches the same in another domain.
  void Start(const std::vector<std::pair<std::string, int>>& logs, bool running) {
    SetService("Corvane Service", running ? "running" : "stopped");
    for (const auto& [computer, log] : logs) {
      Watch(computer, log);
      const std::string key = " VALUES ('" + computer + std::to_string(log) + "', ";
      for (const std::string table : Attached)
        Console.Rows("INSERT INTO " + table + key + "'MERIDIAN', 1), " + key.substr(8) + "'HARBOR', 1)");
    }
    Console.Start();
    Console.Data.Forget();
    Host.Slept.clear();
  }
  void Delete(std::initializer_list<int> rows, const std::string& asked, ui::MsgResult answer = ui::MsgResult::Yes) {
    Window().lvwComputers.SelectNone();
    for (const int row : rows) Window().lvwComputers.Select(row);
    OnMessage("StopWatching", asked, answer);
    if (IsLocked) OnMessage("Locked");
    Host.Press(Window().tbrMain, "delete");
  }
  /// The logs with their marks, and how many rows are attached to logs of the domain and of the other one.
  std::string Left() { return Console.Rows(ReadTextFile(CORVANE_SOURCE_DIR "/tests/console/Left.txt")); }
  /// The configuration database as another process has it open.
  std::unique_ptr<Connection> OtherProgram() {
    auto connection = Console.Data.NewConnection();
    return OpenWithJet40(*connection, "C:\\Corvane\\corvane.db") ? std::move(connection) : nullptr;
  }
  auto Updates() { return std::ranges::count_if(Console.Data.Statements, IsUpdate); }

  const std::string OneLog = "the Application log on MERA";
  /// Whether the next deletion tells of locks.
  bool IsLocked = false;
};

TEST_F(LogDeletionTest, WithTheServiceStoppedRowsGoAtOnce) {
  Start({{"MERA", 1}, {"MERB", 2}, {"MERC", 3}}, false);
  const std::string stamp = Console.Setting("LastDBUpdate");
  Window().lvwComputers.SelectNone();
  Host.Press(Window().tbrMain, "delete");
  Delete({0}, OneLog, ui::MsgResult::No);
  EXPECT_TRUE(Console.Data.Statements.empty());
  Delete({0}, OneLog);
  const std::string where = " WHERE IDName = 'MERA1' AND [Domain] = 'MERIDIAN'";
  std::vector<std::string> expected{"DELETE FROM RegisteredServers" + where};
  for (const char* table : Attached) expected.push_back(std::string("DELETE FROM ") + table + where);
  EXPECT_EQ(expected, Console.Data.Changes());
  EXPECT_EQ("2 log(s) watched by Corvane", Panel(0));
  Delete({0, 1}, "2 logs");
  EXPECT_EQ("none|0|15\n", Left());
  EXPECT_EQ(stamp, Console.Setting("LastDBUpdate"));
  EXPECT_EQ((std::vector<int>{0, 500, 0, 500}), Console.Data.LockWaits);
}

// A row whose log is not known is passed over as well.
TEST_F(LogDeletionTest, FailuresArePassedOver) {
  Start({{"MERA", 1}, {"MERB", 9}, {"MERC", 3}}, false);
  Console.Data.Fails = [](const std::string& sql) {
    return sql.find("DELETE FROM RegisteredServers WHERE IDName = 'MERA1'") == 0 || sql.find("AlarmsForLogs") == 12;
  };
  Delete({0, 1, 2}, "3 logs");
  EXPECT_EQ("MERA1 0, MERB9 0|7|15\n", Left());
}

TEST_F(LogDeletionTest, AllRowsShareOneBudgetOfRetries) {
  Start({{"MERA", 1}, {"MERB", 2}, {"MERC", 3}}, true);
  IsLocked = true;
  // A single row that stays locked keeps what is attached to it, and the list.
  Console.Data.Fails = IsUpdate;
  Delete({0}, OneLog);
  EXPECT_EQ(51, Updates());
  EXPECT_EQ("MERA1 0, MERB2 0, MERC3 0|15|15\n", Left());
  EXPECT_EQ(51U, Console.Data.Statements.size()) << "the list was read again";
  // Among several the others go on, each with what is left of the budget, and all attachments go.
  Console.Data.Forget();
  int failures = 52;
  Console.Data.Fails = [&](const std::string& sql) { return IsUpdate(sql) && failures-- > 0; };
  Delete({0, 1, 2}, "3 logs");
  EXPECT_EQ(53, Updates());
  EXPECT_EQ("MERA1 0, MERB2 0, MERC3 1|0|15\n", Left());
  EXPECT_EQ(std::vector<int>(2 * 50, 100), Host.Slept);
  EXPECT_EQ(2, Window().lvwComputers.Count());
}

TEST_F(LogDeletionTest, AnotherProcessHoldsTheRow) {
  ChildProcess holder([&](ChildProcess& self) {
    self.Wait();
    const auto connection = OtherProgram();
    connection->BeginTrans();
    connection->Execute("UPDATE RegisteredServers SET DeleteMe = False WHERE IDName = 'MERA1'");
    self.Tell(0);
    self.Wait();
    connection->RollbackTrans();
  });
  Start({{"MERA", 1}}, true);
  holder.Release();
  ASSERT_EQ(0, holder.Hear());
  IsLocked = true;
  Delete({0}, OneLog);
  EXPECT_EQ(50U, Host.Slept.size());
  EXPECT_EQ("MERA1 0|5|5\n", Left());
  // It lets go while the console waits.
  Host.DuringSleep = [&] {
    if (Host.Slept.size() != 60) return;
    holder.Release();
    EXPECT_EQ(0, holder.Hear());
  };
  IsLocked = false;
  Delete({0}, OneLog);
  EXPECT_EQ("MERA1 1|0|5\n", Left());
}

TEST_F(LogDeletionTest, TheServiceRemovesMarkedRows) {
  ChildProcess service([&](ChildProcess& self) {
    self.Wait();
    const auto connection = OtherProgram();
    for (int i = 0; i < 1000; ++i) {
      connection->Execute("DELETE FROM RegisteredServers WHERE DeleteMe = True");
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
  });
  Start({{"MERA", 1}, {"MERB", 2}, {"MERC", 3}}, true);
  service.Release();
  Delete({0, 2}, "2 logs");
  for (int i = 0; i < 500 && Left() != "MERB2 0|5|15\n"; ++i)
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  EXPECT_EQ("MERB2 0|5|15\n", Left());
}

TEST_F(LogDeletionTest, SyslogDevicesAreTakenOffTheList) {
  Console.Start();
  Console.Rows("INSERT INTO SyslogDevices VALUES ('a', '10.0.0.1'), ('b', '10.0.0.2'), ('c', '10.0.0.3')");
  Host.BringToFront(Window().tabMain, 1);
  const auto remove = [&](std::initializer_list<int> rows, const char* asked, ui::MsgResult answer) {
    Window().lvwSyslogs.SelectNone();
    for (const int row : rows) Window().lvwSyslogs.Select(row);
    if (asked) OnMessage("StopListening", asked, answer);
    Host.Click(Window().mnuFileSyslogDelete);
    return Console.Rows("SELECT DeviceName FROM SyslogDevices");
  };
  EXPECT_EQ("a\nb\nc\n", remove({}, nullptr, ui::MsgResult::Ok));
  EXPECT_EQ("a\nb\nc\n", remove({1}, "the b syslog", ui::MsgResult::No));
  EXPECT_EQ("a\nc\n", remove({1}, "the b syslog", ui::MsgResult::Yes));
  EXPECT_EQ("2 syslog device(s) accepted by Corvane", Panel(0));
  EXPECT_EQ("", remove({0, 1}, "2 syslog devices", ui::MsgResult::Yes));
}

}  // namespace corvane::test
