#include <gtest/gtest.h>

#include <chrono>

#include "support/ChildProcess.h"
#include "support/ErrorOf.h"
#include "support/TestStore.h"

namespace corvane::test {

constexpr const char* Add = "INSERT INTO AlarmGroups (Name) VALUES ('x')";
constexpr const char* Count = "SELECT count(*) FROM AlarmGroups";

// Two processes on one file, with either way of keeping unfinished changes apart.
class SharingTest : public testing::TestWithParam<const char*> {
 protected:
  SharingTest() {
    EXPECT_EQ(store_.Ask(std::string("PRAGMA journal_mode = ") + GetParam()), std::string(GetParam()) + "\n");
  }

  static void AddLong(Connection& connection, int number, std::size_t size) {
    connection.Execute("INSERT INTO CustomNotifications VALUES ('" + std::to_string(number) + "', 'x', '" +
                       std::string(size, 'x') + "')");
  }

  TestStore store_;
};

TEST_P(SharingTest, AWriterHoldsUpWritersButNoReadersAndRowsInHandHoldUpNobody) {
  store_.Ask(Add);
  ChildProcess other([&](ChildProcess& self) {
    const auto connection = store_.Connect();
    connection->BeginTrans();
    connection->Execute(Add);
    self.Tell(0);
    self.Wait();
    connection->CommitTrans();
  });
  ASSERT_EQ(other.Hear(), 0);
  const auto connection = store_.Connect();
  const auto refused = [&] {
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(ErrorOf([&] { connection->Execute(Add); }), errors::DataLocked);
    return std::chrono::steady_clock::now() - start;
  };
  EXPECT_GE(refused(), std::chrono::milliseconds(450));
  connection->SetLockWait(0);
  EXPECT_LT(refused(), std::chrono::milliseconds(300));
  const auto rows = store_.Open(*connection, "AlarmGroups", LockType::Optimistic);
  rows->SetField("Name", std::string("changed"));
  // A transaction whose change was refused goes on, and may try again.
  connection->BeginTrans();
  refused();
  other.Release();
  EXPECT_EQ(other.Hear(), 0);
  rows->Update();
  connection->CommitTrans();
  EXPECT_EQ(store_.Ask("SELECT Name FROM AlarmGroups"), "changed\nx\n");
}

TEST_P(SharingTest, AProcessKilledInMidTransactionLeavesNoTrace) {
  ChildProcess other([&](ChildProcess& self) {
    const auto connection = store_.Connect();
    connection->Execute(Add);
    connection->BeginTrans();
    // More than the engine keeps in memory, so that parts of it have reached the disk.
    for (int i = 0; i < 40; ++i) AddLong(*connection, i, 200000);
    self.Tell(0);
    self.Wait();
  });
  ASSERT_EQ(other.Hear(), 0);
  other.Kill();
  const auto connection = store_.Connect();
  EXPECT_TRUE(store_.Open(*connection, "CustomNotifications")->Eof());
  connection->Execute(Add);
  EXPECT_EQ(store_.Ask(Count) + store_.Ask("PRAGMA integrity_check"), "2\nok\n");
}

TEST_P(SharingTest, ADiskThatTakesNoMoreLosesOnlyTheLastStatement) {
  const int done = OnFullDisk(400000, [&] {
    const auto connection = store_.Connect();
    int error = 0, count = 0;
    for (; error == 0 && count < 100; ++count) error = ErrorOf([&] { AddLong(*connection, count, 20000); });
    return error == errors::DeviceIo ? count - 1 : -1;
  });
  EXPECT_GT(done, 0);
  EXPECT_EQ(store_.Ask("SELECT count(*) FROM CustomNotifications"), std::to_string(done) + "\n");
  EXPECT_EQ(store_.Ask("PRAGMA integrity_check"), "ok\n");
}

TEST_P(SharingTest, TransactionsEndWithTheConnection) {
  const auto connection = store_.Connect();
  EXPECT_EQ(ErrorOf([&] { connection->CommitTrans(); }), errors::DataFailure);
  for (const auto end : {&Connection::RollbackTrans, &Connection::CommitTrans, &Connection::Close}) {
    connection->BeginTrans();
    EXPECT_EQ(ErrorOf([&] { connection->BeginTrans(); }), errors::DataFailure);
    connection->Execute(Add);
    EXPECT_NE(ErrorOf([&] { connection->Execute("INSERT INTO AlarmGroups ([Index]) VALUES ('x')"); }), 0);
    (*connection.*end)();
  }
  EXPECT_EQ(store_.Ask(Count), "1\n");
}

INSTANTIATE_TEST_SUITE_P(Journals, SharingTest, testing::Values("wal", "delete"));

}  // namespace corvane::test
