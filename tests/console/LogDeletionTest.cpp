#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include "adapters/linux/HostPaths.h"
#include "adapters/sqlite/SqliteProvider.h"
#include "support/ChildProcess.h"
#include "support/TestConsole.h"

namespace corvane::test {
namespace {

constexpr const char* Locked =
    "One or more records could not be deleted due to record locking issues.  If this error persists, you may want to "
    "stop the Corvane Service, try this operation again, and then restart the Corvane Service.";
constexpr const char* Attached[] = {"AlarmsForLogs", "NotificationsForLogs", "AlarmGroupsForLogs", "DenyAlarmsForLogs",
                                    "DenyAlarmGroupsForLogs"};

class LogDeletionTest : public ::testing::Test {
 protected:
  /// Puts logs under watch, each with one row in every table of attachments, and in another domain a log of each key.
  void Start(const std::vector<std::pair<std::string, int>>& logs, bool running) {
    console.SetLab("Service Corvane Service", "State", running ? "running" : "stopped");
    for (const char* domain : {"MERIDIAN", "HARBOR"})
      for (const auto& [computer, log] : logs) {
        const std::string key = "'" + computer + std::to_string(log) + "', '" + domain + "', ";
        console.Rows("INSERT OR IGNORE INTO RegisteredServers VALUES (" + key + "'" + computer + "', " +
                     std::to_string(log) + ", 0, 0, 0, 0)");
        for (const char* table : Attached) console.Rows(std::string("INSERT INTO ") + table + " VALUES (" + key + "1)");
      }
    if (!console.App.Started()) console.Start();
    console.Data.Forget();
    console.Host.Slept.clear();
  }
  void Delete(std::initializer_list<int> rows) {
    ui::ListView& list = console.Window().lvwComputers;
    list.SelectNone();
    for (const int row : rows) list.Select(row);
    console.Host.Press(console.Window().tbrMain, "delete");
  }
  void Answer(const std::string& what, ui::MsgResult answer = ui::MsgResult::Yes) {
    console.Host.OnBox("Are you sure you want to stop watching " + what + "?", answer);
  }
  std::string Registered() {
    return console.Rows("SELECT IDName, DeleteMe FROM RegisteredServers WHERE [Domain] = 'MERIDIAN'");
  }
  /// How many rows are attached to logs of a domain.
  std::string CountAttached(const std::string& domain) {
    std::string sum = "SELECT 0";
    for (const char* table : Attached)
      sum += std::string(" + (SELECT COUNT(*) FROM ") + table + " WHERE [Domain] = '" + domain + "')";
    return console.Rows(sum);
  }
  std::size_t Updates() {
    std::size_t count = 0;
    for (const std::string& sql : console.Data.Statements) count += sql.starts_with("UPDATE") ? 1 : 0;
    return count;
  }

  TestConsole console;
};

TEST_F(LogDeletionTest, WithTheServiceStoppedRowsGoAtOnce) {
  Start({{"MERA", 1}, {"MERB", 2}, {"MERC", 3}}, false);
  const std::string stamp = console.Setting("LastDBUpdate");
  Delete({});
  Answer("the Application log on MERA", ui::MsgResult::No);
  Delete({0});
  EXPECT_TRUE(console.Data.Statements.empty());
  Answer("the Application log on MERA");
  Delete({0});
  const std::string where = " WHERE IDName = 'MERA1' AND [Domain] = 'MERIDIAN'";
  std::vector<std::string> expected{"DELETE FROM RegisteredServers" + where};
  for (const char* table : Attached) expected.push_back(std::string("DELETE FROM ") + table + where);
  EXPECT_EQ(expected, console.Data.Changes());
  EXPECT_EQ("2 log(s) watched by Corvane", console.Window().stbMain.Panels[0].Text);
  Answer("2 logs");
  Delete({0, 1});
  EXPECT_EQ("", Registered());
  EXPECT_EQ("0\n", CountAttached("MERIDIAN"));
  EXPECT_EQ("15\n", CountAttached("HARBOR"));
  EXPECT_EQ(stamp, console.Setting("LastDBUpdate"));
  EXPECT_EQ(ui::MsgIcon::Question, console.Host.Boxes.back().Icon);
  EXPECT_EQ((std::vector<int>{0, 500, 0, 500}), console.Data.LockWaits);
}

TEST_F(LogDeletionTest, WithTheServiceRunningRowsAreMarkedAndAttachmentsGo) {
  Start({{"MERA", 1}, {"MERB", 2}}, true);
  Answer("2 logs");
  Delete({0, 1});
  EXPECT_EQ("MERA1|1\nMERB2|1\n", Registered());
  EXPECT_EQ("0\n", CountAttached("MERIDIAN"));
  EXPECT_EQ(0, console.Window().lvwComputers.Count());
  EXPECT_TRUE(console.Host.Slept.empty());
}

// A failing statement outside the loop stops nothing; a row whose log is not known is passed over.
TEST_F(LogDeletionTest, FailuresArePassedOver) {
  Start({{"MERA", 1}, {"MERB", 9}, {"MERC", 3}}, false);
  console.Data.Fails = [](const std::string& sql) {
    return sql.find("DELETE FROM RegisteredServers WHERE IDName = 'MERA1'") == 0 || sql.find("AlarmsForLogs") == 12;
  };
  Answer("3 logs");
  Delete({0, 1, 2});
  EXPECT_EQ("MERA1|0\nMERB9|0\n", Registered());
  EXPECT_EQ("7\n", CountAttached("MERIDIAN"));
}

TEST_F(LogDeletionTest, AllRowsShareOneBudgetOfRetries) {
  Start({{"MERA", 1}, {"MERB", 2}, {"MERC", 3}}, true);
  const auto isUpdate = [](const std::string& sql) { return sql.starts_with("UPDATE"); };
  // A single row that stays locked keeps what is attached to it, and the list.
  console.Data.Fails = isUpdate;
  Answer("the Application log on MERA");
  console.Host.OnBox(Locked);
  Delete({0});
  EXPECT_EQ(51U, Updates());
  EXPECT_EQ(std::vector<int>(50, 100), console.Host.Slept);
  EXPECT_EQ("15\n", CountAttached("MERIDIAN"));
  EXPECT_EQ(51U, console.Data.Statements.size()) << "the list was read again";
  // Among several the others go on, each with what is left of the budget, and all attachments go.
  console.Data.Forget();
  int failures = 51;
  console.Data.Fails = [&](const std::string& sql) { return isUpdate(sql) && failures-- > 0; };
  Answer("3 logs");
  console.Host.OnBox(Locked);
  Delete({0, 1, 2});
  EXPECT_EQ(53U, Updates());
  EXPECT_EQ("MERA1|0\nMERB2|1\nMERC3|1\n", Registered());
  EXPECT_EQ("0\n", CountAttached("MERIDIAN"));
  EXPECT_EQ(1, console.Window().lvwComputers.Count());
}

// The configuration database as another process has it open.
class OtherProgram {
 public:
  explicit OtherProgram(const std::filesystem::path& folder)
      : provider_(HostPaths(folder)), connection_(provider_.NewConnection()) {
    connection_->Open("Provider=Microsoft.Jet.OLEDB.3.51;Data Source=C:\\Corvane\\corvane.db;");
  }
  Connection* operator->() { return connection_.get(); }

 private:
  SqliteProvider provider_;
  std::unique_ptr<Connection> connection_;
};

TEST_F(LogDeletionTest, AnotherProcessHoldsTheRow) {
  ChildProcess holder([&](ChildProcess& self) {
    self.Wait();
    OtherProgram connection(console.Folder());
    connection->BeginTrans();
    connection->Execute("UPDATE RegisteredServers SET DeleteMe = False WHERE IDName = 'MERA1'");
    self.Tell(0);
    self.Wait();
    connection->RollbackTrans();
  });
  Start({{"MERA", 1}}, true);
  holder.Release();
  ASSERT_EQ(0, holder.Hear());
  Answer("the Application log on MERA");
  console.Host.OnBox(Locked);
  Delete({0});
  EXPECT_EQ(50U, console.Host.Slept.size());
  EXPECT_EQ("MERA1|0\n", Registered());
  // It lets go while the console waits.
  console.Host.DuringSleep = [&] {
    if (console.Host.Slept.size() != 60) return;
    holder.Release();
    EXPECT_EQ(0, holder.Hear());
  };
  Answer("the Application log on MERA");
  Delete({0});
  EXPECT_EQ("MERA1|1\n", Registered());
  EXPECT_EQ("0\n", CountAttached("MERIDIAN"));
}

// The monitoring service removes what the console has marked.
TEST_F(LogDeletionTest, TheServiceRemovesMarkedRows) {
  ChildProcess service([&](ChildProcess& self) {
    self.Wait();
    OtherProgram connection(console.Folder());
    for (int i = 0; i < 1000; ++i) {
      connection->Execute("DELETE FROM RegisteredServers WHERE DeleteMe = True");
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
  });
  Start({{"MERA", 1}, {"MERB", 2}, {"MERC", 3}}, true);
  service.Release();
  Answer("2 logs");
  Delete({0, 2});
  for (int i = 0; i < 500 && Registered() != "MERB2|0\n"; ++i)
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  EXPECT_EQ("MERB2|0\n", Registered());
  EXPECT_EQ("5\n", CountAttached("MERIDIAN"));
}

TEST_F(LogDeletionTest, SyslogDevicesAreTakenOffTheList) {
  Start({}, false);
  console.Rows("INSERT INTO SyslogDevices VALUES ('a', '10.0.0.1'), ('b', '10.0.0.2'), ('c', '10.0.0.3')");
  console.Host.BringToFront(console.Window().tabMain, 1);
  const auto remove = [&](std::initializer_list<int> rows) {
    console.Window().lvwSyslogs.SelectNone();
    for (const int row : rows) console.Window().lvwSyslogs.Select(row);
    console.Host.Click(console.Window().mnuFileSyslogDelete);
  };
  const std::string question = "Are you sure you want to stop listening for messages from ";
  remove({});
  console.Host.OnBox(question + "the b syslog?", ui::MsgResult::No);
  remove({1});
  console.Host.OnBox(question + "the b syslog?", ui::MsgResult::Yes);
  remove({1});
  EXPECT_EQ("a|10.0.0.1\nc|10.0.0.3\n", console.Rows("SELECT * FROM SyslogDevices"));
  EXPECT_EQ("2 syslog device(s) accepted by Corvane", console.Window().stbMain.Panels[0].Text);
  console.Host.OnBox(question + "2 syslog devices?", ui::MsgResult::Yes);
  remove({0, 1});
  EXPECT_EQ("", console.Rows("SELECT * FROM SyslogDevices"));
}

}  // namespace
}  // namespace corvane::test
