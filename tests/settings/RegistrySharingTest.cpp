#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <random>

#include "adapters/settings/RegistryFileStore.h"
#include "settings/ChildProcess.h"
#include "support/TempFolder.h"

namespace corvane {
namespace {

using namespace std::string_literals;
using namespace registry;
namespace fs = std::filesystem;

constexpr long DiskFull = 112, BadDatabase = 1009, KeyDeleted = 1018;

class RegistrySharingTest : public testing::Test {
 protected:
  RegistrySharingTest() {
    EXPECT_EQ(RegistryFileStore::Create(File), Ok);
    RegistryHandle made;
    EXPECT_EQ(Store.CreateKey(LocalMachine, "Statistics", AllButLinks, made), Ok);
    EXPECT_EQ(Set(Store, "Kept", "1"), Ok);
  }

  static long Set(RegistryFileStore& store, const std::string& name, const std::string& text) {
    RegistryHandle opened;
    if (const long status = store.OpenKey(LocalMachine, "Statistics", AllButLinks, opened)) return status;
    const long status = store.SetValue(opened, name, {String, text + '\0'});
    store.CloseKey(opened);
    return status;
  }

  static std::string Get(RegistryFileStore& store, const std::string& name) {
    RegistryHandle opened;
    RegistryValue value;
    if (const long status = store.OpenKey(LocalMachine, "Statistics", Read, opened)) return std::to_string(status);
    const long status = store.QueryValue(opened, name, value);
    store.CloseKey(opened);
    return status == Ok ? value.Bytes.substr(0, value.Bytes.size() - 1) : std::to_string(status);
  }

  // The file as it was, and nothing else in the folder.
  void ExpectUntouched(const std::string& before) {
    EXPECT_EQ(Folder.Read("registry.reg"), before);
    EXPECT_EQ(std::distance(fs::directory_iterator(Folder.Path()), {}), 1);
  }

  test::TempFolder Folder;
  fs::path File = Folder.Path() / "registry.reg";
  RegistryFileStore Store{File};
};

TEST_F(RegistrySharingTest, ProcessesThatWriteAtTheSameTimeLoseNothing) {
  std::vector<pid_t> children;
  for (int child = 0; child < 3; ++child)
    children.push_back(test::StartChild([&] {
      RegistryFileStore store(File);
      for (int i = 0; i < 20; ++i) Set(store, std::to_string(child) + "_" + std::to_string(i), "x");
    }));
  for (const pid_t child : children) ::waitpid(child, nullptr, 0);
  for (int child = 0; child < 3; ++child)
    for (int i = 0; i < 20; ++i) EXPECT_EQ(Get(Store, std::to_string(child) + "_" + std::to_string(i)), "x");
  EXPECT_EQ(Get(Store, "Kept"), "1");
}

TEST_F(RegistrySharingTest, AnOpenKeySeesWhatAnotherProcessDoes) {
  RegistryHandle key;
  ASSERT_EQ(Store.OpenKey(LocalMachine, "Statistics", AllButLinks, key), Ok);
  RegistryValue value;
  for (const char* text : {"a", "b", "c"}) {
    EXPECT_EQ(test::InChild([&] {
                RegistryFileStore store(File);
                return Set(store, "Kept", text);
              }),
              Ok);
    EXPECT_EQ(Store.QueryValue(key, "Kept", value), Ok);
    EXPECT_EQ(value.Bytes, text + "\0"s);
  }
  EXPECT_EQ(test::InChild([&] { return RegistryFileStore(File).DeleteKey(LocalMachine, "Statistics"); }), Ok);
  EXPECT_EQ(Store.QueryValue(key, "Kept", value), KeyDeleted);
}

TEST_F(RegistrySharingTest, SeesEachOfManyEditsByHandThatFollowAtOnce) {
  const std::string head = "Corvane Registry Version 1.00\n[HKEY_LOCAL_MACHINE\\Statistics]\n\"N\"=\"";
  Folder.Write("registry.reg", head + "x\"\n");
  std::fstream file(File, std::ios::in | std::ios::out | std::ios::binary);
  for (int i = 0; i < 200; ++i) {
    const std::string digit(1, static_cast<char>('0' + i % 10));
    file.seekp(static_cast<std::streamoff>(head.size()));
    file << digit << std::flush;
    ::usleep(30);
    ASSERT_EQ(Get(Store, "N"), digit);
  }
}

TEST_F(RegistrySharingTest, AWriterKilledAtAnyMomentLeavesTheStateBeforeOrAfter) {
  std::mt19937 random(20260101);
  int last = 0;
  for (int round = 0; round < 30; ++round) {
    const pid_t child = test::StartChild([&] {
      RegistryFileStore store(File);
      for (int n = last + 1;; ++n)
        Set(store, "Data", std::string(100000, static_cast<char>('a' + n % 26)) + std::to_string(n));
    });
    ::usleep(std::uniform_int_distribution<useconds_t>(0, 15000)(random));
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    RegistryFileStore fresh(File);
    ASSERT_EQ(Get(fresh, "Kept"), "1");
    const std::string data = Get(fresh, "Data");
    if (data == std::to_string(NotFound)) continue;
    ASSERT_GT(data.size(), 100000U);
    const int n = std::stoi(data.substr(100000));
    ASSERT_GE(n, last);
    ASSERT_EQ(data.substr(0, 100000), std::string(100000, static_cast<char>('a' + n % 26)));
    last = n;
  }
  EXPECT_GT(last, 0);
  EXPECT_EQ(Set(Store, "Kept", "2"), Ok);
  ExpectUntouched(Folder.Read("registry.reg"));
}

TEST_F(RegistrySharingTest, AFullDiskLosesNothing) {
  const std::string before = Folder.Read("registry.reg");
  EXPECT_EQ(test::WithFullDisk(before.size() + 100,
                               [&]() -> long {
                                 RegistryFileStore store(File);
                                 const long status = Set(store, "Kept", std::string(5000, 'x'));
                                 // What could not be written is not seen either, and what fits can still be written.
                                 return Get(store, "Kept") == "1" && Set(store, "Kept", "1") == Ok ? status : -2;
                               }),
            DiskFull);
  ExpectUntouched(before);
}

TEST_F(RegistrySharingTest, WhoMayOnlyReadIsRefusedAndNothingChanges) {
  const std::string before = Folder.Read("registry.reg");
  const struct {
    mode_t FolderMode, FileMode;
    const char* Seen;
    long Status;
  } cases[] = {{0755, 0644, "1", AccessDenied},
               {0555, 0666, "1", AccessDenied},
               {0777, 0444, "1", AccessDenied},
               {0755, 0000, "1009", BadDatabase}};
  for (const auto& each : cases) {
    ASSERT_EQ(::chmod(File.c_str(), each.FileMode), 0);
    ASSERT_EQ(::chmod(Folder.Path().c_str(), each.FolderMode), 0);
    EXPECT_EQ(test::AsNobody([&]() -> long {
                RegistryFileStore store(File);
                RegistryHandle none;
                if (Get(store, "Kept") != each.Seen) return -2;
                if (store.CreateKey(LocalMachine, "New", AllButLinks, none) != each.Status) return -3;
                return Set(store, "Kept", "2");
              }),
              each.Status);
  }
  ASSERT_EQ(::chmod(Folder.Path().c_str(), 0700), 0);
  ASSERT_EQ(::chmod(File.c_str(), 0600), 0);
  ExpectUntouched(before);
}

TEST_F(RegistrySharingTest, KeepsTheModeOfTheFileAndALinkToIt) {
  ASSERT_EQ(::chmod(File.c_str(), 0640), 0);
  const fs::path link = Folder.Path() / "link.reg";
  fs::create_symlink("registry.reg", link);
  RegistryFileStore store(link);
  EXPECT_EQ(Set(store, "Kept", "2"), Ok);
  EXPECT_TRUE(fs::is_symlink(link));
  EXPECT_EQ(Get(Store, "Kept"), "2");
  EXPECT_EQ(static_cast<int>(fs::status(File).permissions()), 0640);
}

TEST_F(RegistrySharingTest, AProcessThatHoldsTheFileForGoodDoesNotHangTheConsole) {
  const int held = ::open(File.c_str(), O_RDWR);
  ASSERT_EQ(::flock(held, LOCK_EX), 0);
  const std::string before = Folder.Read("registry.reg");
  constexpr long busy = 170;
  EXPECT_EQ(Set(Store, "Kept", "2"), busy);
  EXPECT_EQ(Get(Store, "Kept"), "1");
  ::close(held);
  ExpectUntouched(before);
  EXPECT_EQ(Set(Store, "Kept", "2"), Ok);
}

}  // namespace
}  // namespace corvane
