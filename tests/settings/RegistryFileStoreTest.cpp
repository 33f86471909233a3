#include "adapters/settings/RegistryFileStore.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <unistd.h>

#include <random>

#include "support/ChildProcess.h"
#include "support/TempFolder.h"

namespace corvane::test {

using namespace std::string_literals;
using namespace registry;
namespace fs = std::filesystem;

constexpr const char* Settings = "Software\\Corvane";
constexpr int InvalidParameter = 87, DiskFull = 112, Busy = 170, AlreadyExists = 183, BadDatabase = 1009,
              KeyDeleted = 1018;

class RegistryFileStoreTest : public testing::Test {
 protected:
  RegistryFileStoreTest() {
    EXPECT_EQ(RegistryFileStore::Create(File), Ok);
    EXPECT_EQ(Store.CreateKey(LocalMachine, Settings, AllButLinks, Key), Ok);
    EXPECT_EQ(Set("Kept", "1"), Ok);
  }

  RegistryHandle Open(std::string_view key, std::uint32_t access) {
    RegistryHandle opened;
    EXPECT_EQ(Store.OpenKey(LocalMachine, key, access, opened), Ok) << key;
    return opened;
  }
  int Set(std::string_view name, const std::string& text, RegistryHandle key = 0) {
    return static_cast<int>(Store.SetValue(key == 0 ? Key : key, name, {String, text + '\0'}));
  }
  long Query(RegistryHandle key, std::string_view name) { return Store.QueryValue(key, name, Value); }
  std::string Get(std::string_view name) {
    const long status = Query(Key, name);
    return status == Ok ? Value.Bytes.c_str() : "status " + std::to_string(status);
  }
  // The file as it was, and nothing else in the folder.
  void ExpectUntouched(const std::string& before) {
    EXPECT_EQ(Folder.Read("registry.reg"), before);
    EXPECT_EQ(std::distance(fs::directory_iterator(Folder.Path()), {}), 1);
  }

  TempFolder Folder;
  fs::path File = Folder.Path() / "registry.reg";
  RegistryFileStore Store{File};
  RegistryHandle Key = 0, None = 0;
  RegistryValue Value;
  std::string Name;
};

TEST_F(RegistryFileStoreTest, FindsNamesInAnyCaseAndKeepsTheirFirstSpelling) {
  EXPECT_EQ(Set("kept", "0", Open("SOFTWARE\\corvane", AllButLinks)), Ok);
  EXPECT_EQ(Set("Größe", "x"), Ok);
  EXPECT_EQ(Get("GRÖßE"), "x");
  EXPECT_EQ(Store.CreateKey(ClassesRoot, "http", CreateSubKey, None), Ok);
  EXPECT_EQ(Store.OpenKey(LocalMachine, "http", Read, None), NotFound);
  EXPECT_EQ(Store.OpenKey(0x80000001, "http", Read, None), InvalidHandle);
  EXPECT_EQ(Store.Connect("\\\\SERVER1", LocalMachine, None), NetworkPathNotFound);
  EXPECT_EQ(Folder.Read("registry.reg"),
            "Corvane Registry Version 1.00\n\n[HKEY_LOCAL_MACHINE]\n\n[HKEY_LOCAL_MACHINE\\Software]\n\n"
            "[HKEY_LOCAL_MACHINE\\Software\\Corvane]\n\"Kept\"=\"0\"\n\"Größe\"=\"x\"\n\n"
            "[HKEY_CLASSES_ROOT]\n\n[HKEY_CLASSES_ROOT\\http]\n");
}

TEST_F(RegistryFileStoreTest, AllowsOnlyWhatAKeyWasOpenedFor) {
  const RegistryHandle reader = Open(Settings, Read64), writer = Open(Settings, Write);
  EXPECT_EQ(Set("Kept", "0", reader), AccessDenied);
  EXPECT_EQ(Store.DeleteValue(reader, "Kept"), AccessDenied);
  EXPECT_EQ(Query(writer, "Kept"), AccessDenied);
  EXPECT_EQ(Store.EnumKey(Open(Settings, CreateSubKey), 0, Name), AccessDenied);
  EXPECT_EQ(Set("Kept", "0", writer), Ok);
  EXPECT_EQ(Query(reader, "Kept"), Ok);
}

TEST_F(RegistryFileStoreTest, EnumeratesInTheOrderOfTheFile) {
  for (const char* name : {"b", "C", "a"})
    EXPECT_EQ(Store.CreateKey(Key, name, AllButLinks, None) + Set(name, "1"), Ok) << name;
  for (const long status : {Ok, NotFound}) EXPECT_EQ(Store.DeleteValue(Key, "c"), status);
  std::string names;
  for (std::uint32_t i = 0; Store.EnumValue(Key, i, Name, Value) == Ok; ++i) names += Name + " ";
  for (std::uint32_t i = 0; Store.EnumKey(Key, i, Name) == Ok; ++i) names += Name + " ";
  EXPECT_EQ(names, "Kept b a b C a ");
  EXPECT_TRUE(Store.EnumValue(Key, 3, Name, Value) == NoMoreItems && Store.EnumKey(Key, 3, Name) == NoMoreItems);
}

TEST_F(RegistryFileStoreTest, ADeletedKeyAndAClosedHandleStayUnusable) {
  const std::pair<const char*, long> keys[] = {
      {"Software", AccessDenied}, {"", AccessDenied}, {"Software\\Missing", NotFound}, {"software\\corvane", Ok}};
  for (const auto& [key, status] : keys) EXPECT_EQ(Store.DeleteKey(LocalMachine, key), status) << key;
  EXPECT_EQ(Query(Key, "Kept"), KeyDeleted);
  EXPECT_EQ(Set("Kept", "1"), KeyDeleted);
  EXPECT_EQ(Store.OpenKey(LocalMachine, Settings, Read, None), NotFound);

  for (const long status : {Ok, InvalidHandle}) EXPECT_EQ(Store.CloseKey(Key), status);
  EXPECT_EQ(Query(Open("Software", Read), "Kept"), NotFound);
  EXPECT_EQ(Query(Key, "Kept"), InvalidHandle);
}

TEST_F(RegistryFileStoreTest, NeitherMakesNorReadsNorChangesWhatIsNoRegistry) {
  for (const std::string& key : {"a\nb"s, "a\0b"s})
    EXPECT_EQ(Store.CreateKey(LocalMachine, key, AllButLinks, None), InvalidParameter);
  EXPECT_EQ(Set("a\nb", "1"), InvalidParameter);
  EXPECT_EQ(RegistryFileStore::Create(File), AlreadyExists);
  for (const char* content : {"", "\x01\x02[x"}) {
    Folder.Write("registry.reg", content);
    EXPECT_EQ(Store.CreateKey(LocalMachine, Settings, AllButLinks, None), BadDatabase);
    EXPECT_EQ(Set("Kept", "0"), BadDatabase);
    ExpectUntouched(content);
  }
  fs::remove(File);
  EXPECT_EQ(Store.CreateKey(LocalMachine, Settings, AllButLinks, None), NotFound);
  EXPECT_FALSE(fs::exists(File));
}

TEST_F(RegistryFileStoreTest, ProcessesThatWriteAtTheSameTimeLoseNothing) {
  const auto write = [&](const std::string& name) {
    for (int i = 0; i < 30; ++i) Set(name + std::to_string(i), "x");
  };
  const ChildProcess other([&](ChildProcess&) { write("other"); });
  write("own");
  EXPECT_EQ(other.Hear(), 0);
  for (int i = 0; i < 30; ++i) EXPECT_EQ(Get("own" + std::to_string(i)) + Get("other" + std::to_string(i)), "xx");
}

TEST_F(RegistryFileStoreTest, AWriterKilledAtAnyMomentLeavesTheStateBeforeOrAfter) {
  std::mt19937 random(20260101);
  const auto data = [](int n) { return std::to_string(n) + std::string(100000, static_cast<char>('a' + n % 26)); };
  int last = 0;
  Set("Data", data(0));
  for (int round = 0; round < 30; ++round) {
    ChildProcess writer([&](ChildProcess&) {
      for (int n = last + 1;; ++n) Set("Data", data(n));
    });
    ::usleep(static_cast<useconds_t>(random() % 15000));
    writer.Kill();
    const std::string present = Get("Data");
    last = std::max(last, std::atoi(present.c_str()));
    ASSERT_TRUE(present == data(last)) << last;
  }
  EXPECT_GT(last, 0);
  EXPECT_EQ(Set("Kept", "2"), Ok);
  ExpectUntouched(Folder.Read("registry.reg"));
}

TEST_F(RegistryFileStoreTest, KeepsTheModeOfTheFileAndALinkToIt) {
  fs::permissions(File, fs::perms{0640});
  const fs::path link = Folder.Path() / "link.reg";
  fs::create_symlink("registry.reg", link);
  EXPECT_EQ(RegistryFileStore(link).CreateKey(LocalMachine, "New", AllButLinks, None), Ok);
  EXPECT_EQ(Store.OpenKey(LocalMachine, "New", Read, None), Ok);
  EXPECT_TRUE(fs::is_symlink(link) && fs::status(File).permissions() == fs::perms{0640});
}

TEST_F(RegistryFileStoreTest, WhatCannotBeWrittenIsRefusedAndNothingChanges) {
  const std::string before = Folder.Read("registry.reg");
  const auto write = [&] {
    const int status = Set("Kept", std::string(5000, 'x'));
    return Get("Kept") == "1" ? status : -2;
  };
  const auto read = [&] { return RegistryFileStore(File).OpenKey(LocalMachine, Settings, Read, None); };
  EXPECT_EQ(OnFullDisk(before.size() + 100, write), DiskFull);
  EXPECT_EQ(AsNobody(File, 0444, 0777, write), AccessDenied);
  EXPECT_EQ(AsNobody(File, 0666, 0555, write), AccessDenied);
  EXPECT_EQ(AsNobody(File, 0000, 0777, read), BadDatabase);
  ExpectUntouched(before);
  const int held = ::open(File.c_str(), O_RDWR);
  ASSERT_EQ(::flock(held, LOCK_EX), 0);
  EXPECT_EQ(write(), Busy);
  ::close(held);
  EXPECT_EQ(Set("Kept", "2"), Ok);
}

}  // namespace corvane::test
