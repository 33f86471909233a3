#include <sys/resource.h>

#include <chrono>
#include <csignal>

#include "sqlite/StoreHelpers.h"

namespace corvane {
namespace {

using test::ErrorOf;
using test::OtherProcess;
using test::TestStore;

// Two processes on one file, with either way of keeping unfinished changes apart.
class SharingTest : public testing::TestWithParam<const char*> {
 protected:
  SharingTest() { EXPECT_EQ(test::Ask(store_.File, std::string("PRAGMA journal_mode = ") + GetParam()), GetParam()); }

  std::string Count() { return test::Ask(store_.File, "SELECT count(*) FROM AlarmGroups"); }
  void ExpectSound() { EXPECT_EQ(test::Ask(store_.File, "PRAGMA integrity_check"), "ok"); }

  TestStore store_;
};

constexpr const char* Add = "INSERT INTO AlarmGroups (Name) VALUES ('x')";

TEST_P(SharingTest, AWriterHoldsUpWritersButNoReaders) {
  OtherProcess other([&](OtherProcess& self) {
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
  EXPECT_EQ(test::Cell(store_, *connection, "SELECT COUNT(*) AS N FROM AlarmGroups", "N"), "0");
  // A transaction whose change was refused goes on, and may try again.
  connection->BeginTrans();
  EXPECT_EQ(ErrorOf([&] { connection->Execute(Add); }), errors::DataLocked);
  other.Release();
  EXPECT_EQ(other.Hear(), 0);
  connection->Execute(Add);
  connection->CommitTrans();
  EXPECT_EQ(Count(), "2");
}

TEST_P(SharingTest, RowsInHandHoldUpNobody) {
  OtherProcess other([&](OtherProcess& self) {
    self.Wait();
    store_.Connect()->Execute(Add);
  });
  const auto connection = store_.Connect();
  for (int i = 0; i < 3; ++i) connection->Execute(Add);
  const auto rows = test::Rows(store_, *connection, "AlarmGroups", LockType::Optimistic);
  other.Release();
  EXPECT_EQ(other.Hear(), 0);
  rows->SetField("Name", std::string("changed"));
  rows->Update();
  EXPECT_EQ(test::Cell(store_, *connection, "SELECT COUNT(*) AS N FROM AlarmGroups", "N"), "4");
}

TEST_P(SharingTest, AProcessKilledInMidTransactionLeavesNoTrace) {
  OtherProcess other([&](OtherProcess& self) {
    const auto connection = store_.Connect();
    connection->Execute(Add);
    connection->BeginTrans();
    // More than the engine keeps in memory, so that parts of it have reached the disk.
    for (int i = 0; i < 40; ++i)
      connection->Execute("INSERT INTO CustomNotifications VALUES ('" + std::to_string(i) + "', 'x', '" +
                          std::string(200000, 'x') + "')");
    self.Tell(0);
    self.Wait();
  });
  ASSERT_EQ(other.Hear(), 0);
  other.Kill();
  const auto connection = store_.Connect();
  EXPECT_TRUE(test::Rows(store_, *connection, "CustomNotifications")->Eof());
  connection->Execute(Add);
  EXPECT_EQ(Count(), "2");
  ExpectSound();
}

TEST_P(SharingTest, ADiskThatTakesNoMoreLosesOnlyTheLastStatement) {
  OtherProcess other([&](OtherProcess& self) {
    const auto connection = store_.Connect();
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{400000, 400000};
    ::setrlimit(RLIMIT_FSIZE, &limit);
    int error = 0, done = 0;
    for (; error == 0 && done < 100; ++done)
      error = ErrorOf([&] {
        connection->Execute("INSERT INTO CustomNotifications VALUES ('" + std::to_string(done) + "', 'x', '" +
                            std::string(20000, 'x') + "')");
      });
    self.Tell(error);
    self.Tell(done - 1);
  });
  EXPECT_EQ(other.Hear(), errors::DeviceIo);
  const int done = other.Hear();
  EXPECT_GT(done, 0);
  EXPECT_EQ(other.Hear(), 0);
  EXPECT_EQ(test::Ask(store_.File, "SELECT count(*) FROM CustomNotifications"), std::to_string(done));
  ExpectSound();
}

TEST_P(SharingTest, TransactionsEndWithTheConnection) {
  const auto connection = store_.Connect();
  EXPECT_EQ(ErrorOf([&] { connection->CommitTrans(); }), errors::DataFailure);
  connection->BeginTrans();
  EXPECT_EQ(ErrorOf([&] { connection->BeginTrans(); }), errors::DataFailure);
  connection->Execute(Add);
  connection->RollbackTrans();
  connection->BeginTrans();
  connection->Execute(Add);
  EXPECT_NE(ErrorOf([&] { connection->Execute("INSERT INTO AlarmGroups ([Index]) VALUES ('x')"); }), 0);
  connection->CommitTrans();
  connection->BeginTrans();
  connection->Execute(Add);
  connection->Close();
  EXPECT_EQ(Count(), "1");
}

INSTANTIATE_TEST_SUITE_P(Journals, SharingTest, testing::Values("wal", "delete"));

}  // namespace
}  // namespace corvane
