#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <random>

#include "adapters/settings/RegistryFileStore.h"
#include "settings/ChildProcess.h"
#include "support/TempFolder.h"

namespace corvane {
namespace {

using namespace registry;
namespace fs = std::filesystem;

constexpr long DiskFull = 112, Busy = 170, BadDatabase = 1009;

class RegistrySharingTest : public testing::Test {
 protected:
  RegistrySharingTest() {
    EXPECT_EQ(RegistryFileStore::Create(File), Ok);
    EXPECT_EQ(Store.CreateKey(LocalMachine, "Statistics", AllButLinks, Key), Ok);
    EXPECT_EQ(Set("Kept", "1"), Ok);
  }

  long Set(const std::string& name, const std::string& text) {
    return Store.SetValue(Key, name, {String, text + '\0'});
  }
  std::string Get(const std::string& name) {
    RegistryHandle opened;
    RegistryValue value;
    if (const long status = Store.OpenKey(LocalMachine, "Statistics", Read, opened))
      return "status " + std::to_string(status);
    const long status = Store.QueryValue(opened, name, value);
    Store.CloseKey(opened);
    return status == Ok ? value.Bytes.c_str() : "status " + std::to_string(status);
  }
  // The file as it was, and nothing else in the folder.
  void ExpectUntouched(const std::string& before) {
    EXPECT_EQ(Folder.Read("registry.reg"), before);
    EXPECT_EQ(std::distance(fs::directory_iterator(Folder.Path()), {}), 1);
  }

  test::TempFolder Folder;
  fs::path File = Folder.Path() / "registry.reg";
  RegistryFileStore Store{File};
  RegistryHandle Key = 0;
};

TEST_F(RegistrySharingTest, ProcessesThatWriteAtTheSameTimeLoseNothing) {
  test::InChildren(3, [&](int child) {
    for (int i = 0; i < 20; ++i) Set(std::to_string(child) + "_" + std::to_string(i), "x");
  });
  for (int i = 0; i < 60; ++i) EXPECT_EQ(Get(std::to_string(i / 20) + "_" + std::to_string(i % 20)), "x");
  EXPECT_EQ(test::InChild([&] { return Set("Kept", "2"); }), Ok);
  EXPECT_EQ(Get("Kept"), "2");
  EXPECT_EQ(test::InChild([&] { return Store.DeleteKey(LocalMachine, "Statistics"); }), Ok);
  EXPECT_EQ(Get("Kept"), "status 2");
  EXPECT_EQ(Set("Kept", "3"), 1018);
}

TEST_F(RegistrySharingTest, AWriterKilledAtAnyMomentLeavesTheStateBeforeOrAfter) {
  std::mt19937 random(20260101);
  const auto data = [](int n) { return std::to_string(n) + std::string(100000, static_cast<char>('a' + n % 26)); };
  int last = 0;
  Set("Data", data(0));
  for (int round = 0; round < 30; ++round) {
    const pid_t child = test::StartChild([&] {
      for (int n = last + 1;; ++n) Set("Data", data(n));
    });
    ::usleep(std::uniform_int_distribution<useconds_t>(0, 15000)(random));
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    const std::string present = Get("Data");
    const int n = std::atoi(present.c_str());
    ASSERT_GE(n, last);
    ASSERT_TRUE(present == data(n)) << n;
    last = n;
  }
  EXPECT_GT(last, 0);
  EXPECT_EQ(Set("Kept", "2"), Ok);
  ExpectUntouched(Folder.Read("registry.reg"));
}

TEST_F(RegistrySharingTest, AFullDiskLosesNothing) {
  const std::string before = Folder.Read("registry.reg");
  EXPECT_EQ(test::WithFullDisk(before.size() + 100,
                               [&]() -> long {
                                 const long status = Set("Kept", std::string(5000, 'x'));
                                 return Get("Kept") == "1" ? status : -2;
                               }),
            DiskFull);
  ExpectUntouched(before);
}

TEST_F(RegistrySharingTest, WhoMayOnlyReadIsRefusedAndNothingChanges) {
  const std::string before = Folder.Read("registry.reg");
  const struct {
    mode_t FolderMode, FileMode;
    long Seen, Written;
  } cases[] = {{0555, 0666, Ok, AccessDenied}, {0777, 0444, Ok, AccessDenied}, {0777, 0000, BadDatabase, BadDatabase}};
  for (const auto& each : cases) {
    ASSERT_EQ(::chmod(File.c_str(), each.FileMode), 0);
    ASSERT_EQ(::chmod(Folder.Path().c_str(), each.FolderMode), 0);
    EXPECT_EQ(test::AsNobody([&]() -> long {
                RegistryFileStore store(File);
                RegistryHandle opened;
                if (store.OpenKey(LocalMachine, "Statistics", Read, opened) != each.Seen) return -2;
                if (each.Seen == Ok && Set("Kept", "2") != each.Written) return -3;
                return store.CreateKey(LocalMachine, "New", AllButLinks, opened);
              }),
              each.Written);
  }
  ASSERT_EQ(::chmod(Folder.Path().c_str(), 0700), 0);
  ASSERT_EQ(::chmod(File.c_str(), 0600), 0);
  ExpectUntouched(before);
}

TEST_F(RegistrySharingTest, KeepsTheModeOfTheFileAndALinkToIt) {
  ASSERT_EQ(::chmod(File.c_str(), 0640), 0);
  const fs::path link = Folder.Path() / "link.reg";
  fs::create_symlink("registry.reg", link);
  RegistryHandle made;
  EXPECT_EQ(RegistryFileStore(link).CreateKey(LocalMachine, "Statistics\\New", AllButLinks, made), Ok);
  EXPECT_TRUE(fs::is_symlink(link));
  EXPECT_EQ(Store.OpenKey(Key, "New", Read, made), Ok);
  EXPECT_EQ(static_cast<int>(fs::status(File).permissions()), 0640);
}

TEST_F(RegistrySharingTest, AProcessThatHoldsTheFileForGoodDoesNotHangTheConsole) {
  const int held = ::open(File.c_str(), O_RDWR);
  ASSERT_EQ(::flock(held, LOCK_EX), 0);
  EXPECT_EQ(Set("Kept", "2"), Busy);
  EXPECT_EQ(Get("Kept"), "1");
  ::close(held);
  EXPECT_EQ(Set("Kept", "2"), Ok);
}

}  // namespace
}  // namespace corvane
