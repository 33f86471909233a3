#include "adapters/settings/RegistryFileStore.h"

#include <gtest/gtest.h>

#include "support/TempFolder.h"

namespace corvane {
namespace {

using namespace std::string_literals;
using namespace registry;

constexpr const char* Settings = "Software\\Corvane";
constexpr long InvalidParameter = 87, AlreadyExists = 183, BadDatabase = 1009, KeyDeleted = 1018;

class RegistryFileStoreTest : public testing::Test {
 protected:
  RegistryFileStoreTest() {
    EXPECT_EQ(RegistryFileStore::Create(File), Ok);
    EXPECT_EQ(Store.CreateKey(LocalMachine, Settings, AllButLinks, Key), Ok);
    EXPECT_EQ(Set(Key, "Created", "1"), Ok);
  }

  RegistryHandle Open(std::string_view key, std::uint32_t access) {
    RegistryHandle opened;
    EXPECT_EQ(Store.OpenKey(LocalMachine, key, access, opened), Ok) << key;
    return opened;
  }
  long Set(RegistryHandle key, std::string_view name, const std::string& text) {
    return Store.SetValue(key, name, {String, text + '\0'});
  }
  long Query(RegistryHandle key, std::string_view name) { return Store.QueryValue(key, name, Value); }

  test::TempFolder Folder;
  std::filesystem::path File = Folder.Path() / "registry.reg";
  RegistryFileStore Store{File};
  RegistryHandle Key = 0, None = 0;
  RegistryValue Value;
  std::string Name;
};

TEST_F(RegistryFileStoreTest, FindsNamesInAnyCaseAndKeepsTheirFirstSpelling) {
  const RegistryHandle key = Open("SOFTWARE\\corvane", AllButLinks);
  EXPECT_EQ(Set(key, "created", "0"), Ok);
  EXPECT_EQ(Set(key, "Größe", "x"), Ok);
  EXPECT_EQ(Query(Key, "GRÖßE"), Ok);
  EXPECT_EQ(Store.CreateKey(ClassesRoot, "http", CreateSubKey, None), Ok);
  EXPECT_EQ(Store.OpenKey(LocalMachine, "http", Read, None), NotFound);
  EXPECT_EQ(Store.OpenKey(0x80000001, "http", Read, None), InvalidHandle);
  EXPECT_EQ(Folder.Read("registry.reg"),
            "Corvane Registry Version 1.00\n\n[HKEY_LOCAL_MACHINE]\n\n[HKEY_LOCAL_MACHINE\\Software]\n\n"
            "[HKEY_LOCAL_MACHINE\\Software\\Corvane]\n\"Created\"=\"0\"\n\"Größe\"=\"x\"\n\n"
            "[HKEY_CLASSES_ROOT]\n\n[HKEY_CLASSES_ROOT\\http]\n");
}

TEST_F(RegistryFileStoreTest, AllowsOnlyWhatAKeyWasOpenedFor) {
  const RegistryHandle reader = Open(Settings, Read), writer = Open(Settings, Write),
                       maker = Open(Settings, CreateSubKey);
  EXPECT_EQ(Set(reader, "Created", "0"), AccessDenied);
  EXPECT_EQ(Store.DeleteValue(reader, "Created"), AccessDenied);
  EXPECT_EQ(Query(writer, "Created"), AccessDenied);
  EXPECT_EQ(Store.EnumValue(writer, 0, Name, Value), AccessDenied);
  EXPECT_EQ(Store.EnumKey(maker, 0, Name), AccessDenied);
  EXPECT_EQ(Set(writer, "Created", "0"), Ok);
  EXPECT_EQ(Query(Open(Settings, Read64), "Created"), Ok);
  EXPECT_EQ(Value.Bytes, "0\0"s);
}

TEST_F(RegistryFileStoreTest, EnumeratesInTheOrderOfTheFile) {
  for (const char* name : {"b", "C", "a"}) {
    EXPECT_EQ(Store.CreateKey(Key, name, AllButLinks, None), Ok);
    EXPECT_EQ(Set(Key, name, "1"), Ok);
  }
  EXPECT_EQ(Store.DeleteValue(Key, "c"), Ok);
  RegistryFileStore again(File);
  for (RegistryFileStore* store : {&Store, &again}) {
    RegistryHandle opened;
    ASSERT_EQ(store->OpenKey(LocalMachine, Settings, Read, opened), Ok);
    std::string names;
    std::uint32_t index = 0;
    for (; store->EnumValue(opened, index, Name, Value) == Ok; ++index) names += Name + " ";
    EXPECT_EQ(store->EnumValue(opened, index, Name, Value), NoMoreItems);
    for (index = 0; store->EnumKey(opened, index, Name) == Ok; ++index) names += Name + " ";
    EXPECT_EQ(store->EnumKey(opened, index, Name), NoMoreItems);
    EXPECT_EQ(names, "Created b a b C a ");
  }
}

TEST_F(RegistryFileStoreTest, ADeletedKeyAndAClosedHandleStayUnusable) {
  EXPECT_EQ(Store.DeleteValue(Key, "Missing"), NotFound);
  EXPECT_EQ(Store.DeleteKey(LocalMachine, "Software"), AccessDenied);
  EXPECT_EQ(Store.DeleteKey(LocalMachine, ""), AccessDenied);
  EXPECT_EQ(Store.DeleteKey(LocalMachine, "Software\\Missing"), NotFound);
  EXPECT_EQ(Store.DeleteKey(LocalMachine, "software\\corvane"), Ok);
  EXPECT_EQ(Query(Key, "Created"), KeyDeleted);
  EXPECT_EQ(Set(Key, "Created", "1"), KeyDeleted);
  EXPECT_EQ(Store.OpenKey(LocalMachine, Settings, Read, None), NotFound);

  EXPECT_EQ(Store.CloseKey(Key), Ok);
  const RegistryHandle next = Open("Software", Read);
  EXPECT_EQ(Store.CloseKey(Key), InvalidHandle);
  EXPECT_EQ(Query(Key, "Created"), InvalidHandle);
  EXPECT_EQ(Query(next, "Created"), NotFound);
  EXPECT_EQ(Query(0, "Created"), InvalidHandle);
}

TEST_F(RegistryFileStoreTest, RefusesNamesThatTheFileCannotHold) {
  std::string deep;
  for (int i = 0; i < 600; ++i) deep += "a\\";
  for (const std::string& key : {"a\nb"s, "a\0b"s, deep})
    EXPECT_EQ(Store.CreateKey(LocalMachine, key, AllButLinks, None), InvalidParameter);
  EXPECT_EQ(Set(Key, "a\nb", "1"), InvalidParameter);
}

TEST_F(RegistryFileStoreTest, ReachesOtherComputersThroughTheResolver) {
  ASSERT_EQ(RegistryFileStore::Create(Folder.Path() / "server1.reg"), Ok);
  RegistryFileStore store(File, [&](const std::string& computer, std::filesystem::path& file) {
    file = Folder.Path() / "server1.reg";
    return computer == "SERVER1" ? Ok : AccessDenied;
  });
  RegistryHandle remote;
  ASSERT_EQ(store.Connect("\\\\SERVER1", LocalMachine, remote), Ok);
  EXPECT_EQ(store.CreateKey(remote, "Only\\There", AllButLinks, None), Ok);
  EXPECT_EQ(store.OpenKey(LocalMachine, "Only", Read, None), NotFound);
  EXPECT_EQ(store.OpenKey(remote, "only\\there", Read, None), Ok);
  EXPECT_EQ(store.CloseKey(remote), Ok);
  EXPECT_EQ(store.OpenKey(remote, "Only", Read, None), InvalidHandle);
  EXPECT_EQ(store.Connect("\\\\CLOSED", LocalMachine, remote), AccessDenied);
  EXPECT_EQ(remote, 0U);
  EXPECT_EQ(Store.Connect("\\\\SERVER1", LocalMachine, remote), NetworkPathNotFound);
}

TEST_F(RegistryFileStoreTest, NeitherReadsNorChangesWhatIsNoRegistry) {
  EXPECT_EQ(RegistryFileStore::Create(File), AlreadyExists);
  for (const char* content : {"", "\x01\x02[x"}) {
    Folder.Write("registry.reg", content);
    EXPECT_EQ(Store.OpenKey(LocalMachine, Settings, Read, None), BadDatabase);
    EXPECT_EQ(Store.CreateKey(LocalMachine, Settings, AllButLinks, None), BadDatabase);
    EXPECT_EQ(Set(Key, "Created", "0"), BadDatabase);
    EXPECT_EQ(Folder.Read("registry.reg"), content);
  }
  std::filesystem::remove(File);
  EXPECT_EQ(Store.CreateKey(LocalMachine, Settings, AllButLinks, None), NotFound);
  EXPECT_EQ(Set(Key, "Created", "0"), NotFound);
  EXPECT_FALSE(std::filesystem::exists(File));
}

}  // namespace
}  // namespace corvane
