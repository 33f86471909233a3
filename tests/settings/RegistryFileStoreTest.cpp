#include "adapters/settings/RegistryFileStore.h"

#include <gtest/gtest.h>

#include <map>

#include "support/TempFolder.h"

namespace corvane {
namespace {

using namespace std::string_literals;
using namespace registry;

constexpr const char* Settings = "Software\\Tarnwick\\Corvane";
constexpr long InvalidParameter = 87, AlreadyExists = 183, BadDatabase = 1009, KeyDeleted = 1018;

RegistryValue Text(const std::string& plain) { return {String, plain + '\0'}; }

class RegistryFileStoreTest : public testing::Test {
 protected:
  RegistryFileStoreTest() {
    EXPECT_EQ(RegistryFileStore::Create(File), Ok);
    RegistryHandle made;
    EXPECT_EQ(Store.CreateKey(LocalMachine, Settings, AllButLinks, made), Ok);
    EXPECT_EQ(Store.SetValue(made, "Created", Text("1")), Ok);
    EXPECT_EQ(Store.CloseKey(made), Ok);
  }

  RegistryHandle Open(std::string_view key, std::uint32_t access = AllButLinks, RegistryHandle root = LocalMachine) {
    RegistryHandle opened;
    EXPECT_EQ(Store.OpenKey(root, key, access, opened), Ok) << key;
    return opened;
  }

  std::string Value(RegistryHandle key, std::string_view name) {
    RegistryValue value;
    const long status = Store.QueryValue(key, name, value);
    return status == Ok ? value.Bytes : "status " + std::to_string(status);
  }

  test::TempFolder Folder;
  std::filesystem::path File = Folder.Path() / "registry.reg";
  RegistryFileStore Store{File};
};

TEST_F(RegistryFileStoreTest, FindsNamesInAnyCaseAndKeepsTheirFirstSpelling) {
  const RegistryHandle key = Open("SOFTWARE\\tarnwick\\CORVANE");
  EXPECT_EQ(Value(key, "CREATED"), "1\0"s);
  EXPECT_EQ(Store.SetValue(key, "created", Text("0")), Ok);
  EXPECT_EQ(Store.SetValue(key, "Größe", Text("x")), Ok);
  EXPECT_EQ(Value(key, "GRÖßE"), "x\0"s);
  EXPECT_EQ(Folder.Read("registry.reg"),
            "Corvane Registry Version 1.00\n\n[HKEY_LOCAL_MACHINE]\n\n[HKEY_LOCAL_MACHINE\\Software]\n\n"
            "[HKEY_LOCAL_MACHINE\\Software\\Tarnwick]\n\n[HKEY_LOCAL_MACHINE\\Software\\Tarnwick\\Corvane]\n"
            "\"Created\"=\"0\"\n\"Größe\"=\"x\"\n");
}

TEST_F(RegistryFileStoreTest, KeepsTheRootsApart) {
  RegistryHandle made, none;
  EXPECT_EQ(Store.CreateKey(ClassesRoot, "http\\shell", CreateSubKey, made), Ok);
  EXPECT_EQ(Store.OpenKey(LocalMachine, "http", Read, none), NotFound);
  EXPECT_EQ(none, 0U);
  EXPECT_EQ(Store.OpenKey(ClassesRoot, "http\\nothing", Read, none), NotFound);
  EXPECT_EQ(Store.OpenKey(0x80000001, "http", Read, none), InvalidHandle);
  EXPECT_EQ(Store.OpenKey(Open("http", Read, ClassesRoot), "shell", Read, none), Ok);
}

TEST_F(RegistryFileStoreTest, AllowsOnlyWhatAKeyWasOpenedFor) {
  const RegistryHandle reader = Open(Settings, Read), writer = Open(Settings, Write),
                       maker = Open(Settings, CreateSubKey);
  RegistryValue value;
  std::string name;
  EXPECT_EQ(Store.SetValue(reader, "Created", Text("0")), AccessDenied);
  EXPECT_EQ(Store.DeleteValue(reader, "Created"), AccessDenied);
  EXPECT_EQ(Store.QueryValue(writer, "Created", value), AccessDenied);
  EXPECT_EQ(Store.EnumValue(writer, 0, name, value), AccessDenied);
  EXPECT_EQ(Store.EnumKey(maker, 0, name), AccessDenied);
  EXPECT_EQ(Store.SetValue(writer, "Created", Text("0")), Ok);
  EXPECT_EQ(Value(reader, "Created"), "0\0"s);
  EXPECT_EQ(Value(Open(Settings, Read64), "Created"), "0\0"s);
}

TEST_F(RegistryFileStoreTest, EnumeratesInTheOrderOfTheFile) {
  const RegistryHandle key = Open(Settings);
  for (const char* name : {"b", "C", "a"}) {
    RegistryHandle made;
    EXPECT_EQ(Store.CreateKey(key, name, AllButLinks, made), Ok);
    EXPECT_EQ(Store.SetValue(key, name, {Number, "\1\0\0\0"s}), Ok);
  }
  EXPECT_EQ(Store.DeleteValue(key, "c"), Ok);
  RegistryFileStore again(File);
  for (RegistryFileStore* store : {&Store, &again}) {
    RegistryHandle opened;
    ASSERT_EQ(store->OpenKey(LocalMachine, Settings, Read, opened), Ok);
    std::string names, name;
    RegistryValue value;
    std::uint32_t index = 0;
    for (; store->EnumValue(opened, index, name, value) == Ok; ++index) names += name + " ";
    EXPECT_EQ(store->EnumValue(opened, index, name, value), NoMoreItems);
    EXPECT_EQ(value.Type, Number);
    for (index = 0; store->EnumKey(opened, index, name) == Ok; ++index) names += name + " ";
    EXPECT_EQ(store->EnumKey(opened, index, name), NoMoreItems);
    EXPECT_EQ(names, "Created b a b C a ");
  }
}

TEST_F(RegistryFileStoreTest, DeletesValuesAndKeysWithoutKeysBelow) {
  const RegistryHandle key = Open(Settings);
  EXPECT_EQ(Store.DeleteValue(key, "created"), Ok);
  EXPECT_EQ(Store.DeleteValue(key, "created"), NotFound);
  EXPECT_EQ(Store.DeleteKey(LocalMachine, "Software\\Tarnwick"), AccessDenied);
  EXPECT_EQ(Store.DeleteKey(LocalMachine, "Software\\Tarnwick\\Nothing"), NotFound);
  EXPECT_EQ(Store.DeleteKey(LocalMachine, ""), AccessDenied);
  EXPECT_EQ(Store.DeleteKey(LocalMachine, "software\\tarnwick\\corvane"), Ok);

  // The key that is open still does not come back, neither by reading nor by writing.
  EXPECT_EQ(Value(key, "Created"), "status " + std::to_string(KeyDeleted));
  EXPECT_EQ(Store.SetValue(key, "Created", Text("1")), KeyDeleted);
  RegistryHandle none;
  EXPECT_EQ(Store.OpenKey(LocalMachine, Settings, Read, none), NotFound);
}

TEST_F(RegistryFileStoreTest, TellsAClosedHandleFromTheNextOne) {
  const RegistryHandle first = Open(Settings);
  EXPECT_EQ(Store.CloseKey(first), Ok);
  const RegistryHandle second = Open("Software");
  EXPECT_EQ(Store.CloseKey(first), InvalidHandle);
  RegistryValue value;
  EXPECT_EQ(Store.QueryValue(first, "Created", value), InvalidHandle);
  EXPECT_EQ(Store.QueryValue(second, "Created", value), NotFound);
  EXPECT_EQ(Store.QueryValue(0, "Created", value), InvalidHandle);
  EXPECT_EQ(Store.CloseKey(LocalMachine), Ok);
  EXPECT_NE(Open(Settings), 0U);
}

TEST_F(RegistryFileStoreTest, RefusesNamesThatTheFileCannotHold) {
  RegistryHandle none;
  std::string deep;
  for (int i = 0; i < 600; ++i) deep += "a\\";
  for (const std::string& key : {"a\nb"s, "a\0b"s, deep})
    EXPECT_EQ(Store.CreateKey(LocalMachine, key, AllButLinks, none), InvalidParameter);
  EXPECT_EQ(Store.SetValue(Open(Settings), "a\nb", Text("1")), InvalidParameter);
}

TEST_F(RegistryFileStoreTest, ReachesOtherComputersThroughTheResolver) {
  const auto remote = Folder.Path() / "server1.reg";
  ASSERT_EQ(RegistryFileStore::Create(remote), Ok);
  const std::map<std::string, long> computers{{"SERVER1", Ok}, {"CLOSED", AccessDenied}};
  RegistryFileStore store(File, [&](const std::string& computer, std::filesystem::path& file) {
    file = remote;
    const auto found = computers.find(computer);
    return found == computers.end() ? NetworkPathNotFound : found->second;
  });
  RegistryHandle handle, made;
  ASSERT_EQ(store.Connect("\\\\SERVER1", LocalMachine, handle), Ok);
  EXPECT_EQ(store.CreateKey(handle, "Only\\There", AllButLinks, made), Ok);
  EXPECT_EQ(store.OpenKey(LocalMachine, "Only", Read, made), NotFound);
  EXPECT_EQ(store.OpenKey(handle, "only\\there", Read, made), Ok);
  EXPECT_EQ(store.CloseKey(handle), Ok);
  EXPECT_EQ(store.OpenKey(handle, "Only", Read, made), InvalidHandle);

  EXPECT_EQ(store.Connect("\\\\CLOSED", LocalMachine, handle), AccessDenied);
  EXPECT_EQ(store.Connect("\\\\OFF", LocalMachine, handle), NetworkPathNotFound);
  EXPECT_EQ(handle, 0U);
  EXPECT_EQ(store.Connect("\\\\", LocalMachine, handle), NetworkPathNotFound);
  EXPECT_EQ(store.Connect("\\\\SERVER1", ClassesRoot, handle), InvalidHandle);
  EXPECT_EQ(Store.Connect("\\\\SERVER1", LocalMachine, handle), NetworkPathNotFound);
}

TEST_F(RegistryFileStoreTest, NeitherReadsNorChangesWhatIsNoRegistry) {
  const RegistryHandle open = Open(Settings);
  const struct {
    const char* Name;
    const char* Content;
    long Status;
  } cases[] = {{"missing", nullptr, NotFound}, {"empty", "", BadDatabase}, {"garbled", "\x01\x02[x", BadDatabase}};
  for (const auto& each : cases) {
    std::filesystem::remove(File);
    if (each.Content) Folder.Write("registry.reg", each.Content);
    RegistryHandle none;
    EXPECT_EQ(Store.OpenKey(LocalMachine, Settings, Read, none), each.Status) << each.Name;
    EXPECT_EQ(Store.CreateKey(LocalMachine, Settings, AllButLinks, none), each.Status) << each.Name;
    EXPECT_EQ(Store.SetValue(open, "Created", Text("0")), each.Status) << each.Name;
    EXPECT_EQ(Store.DeleteKey(LocalMachine, Settings), each.Status) << each.Name;
    EXPECT_EQ(std::filesystem::exists(File), each.Content != nullptr) << each.Name;
    EXPECT_EQ(Folder.Read("registry.reg"), each.Content ? each.Content : "") << each.Name;
  }
  EXPECT_EQ(RegistryFileStore::Create(File), AlreadyExists);
}

}  // namespace
}  // namespace corvane
