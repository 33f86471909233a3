#include "core/Reghack.h"

#include <gtest/gtest.h>

#include "adapters/settings/RegistryFileStore.h"
#include "platform/RuntimeError.h"
#include "support/TempFolder.h"

namespace corvane {
namespace {

using namespace std::string_literals;

constexpr const char* Settings = "Software\\Tarnwick\\Corvane";

class FixedSystem : public System {
 public:
  int MajorVersion() override { return 5; }
  std::optional<std::string> ComputerName() override { return Name; }
  std::optional<std::string> UserName() override { return std::nullopt; }
  std::string ProgramFolder() override { return "C:\\Corvane"; }
  std::string WindowsFolder() override { return Windows; }
  DateTime Now() override { return {}; }

  std::optional<std::string> Name = "CONSOLE1";
  std::string Windows = "C:\\WINDOWS";
};

// Enumerations answer from a list of statuses, as a registry does that is changed or lost on the way.
class EnumeratingStore : public RegistryFileStore {
 public:
  using RegistryFileStore::RegistryFileStore;

  long EnumValue(RegistryHandle, std::uint32_t index, std::string& name, RegistryValue& value) override {
    name = "N" + std::to_string(index) + Long;
    value = {index == 1 ? registry::Number : registry::String, "v" + Long + '\0'};
    return Statuses.at(index);
  }
  long EnumKey(RegistryHandle, std::uint32_t index, std::string& name) override {
    name = "K" + std::to_string(index) + Long;
    return Statuses.at(index);
  }

  std::vector<long> Statuses;
  std::string Long;
};

class ReghackTest : public testing::Test {
 protected:
  ReghackTest() {
    EXPECT_EQ(RegistryFileStore::Create(Folder.Path() / "local.reg"), registry::Ok);
    EXPECT_EQ(RegistryFileStore::Create(Folder.Path() / "remote.reg"), registry::Ok);
    EXPECT_TRUE(Registry.CreateNewKey(Settings, registry::LocalMachine));
  }

  test::TempFolder Folder;
  EnumeratingStore Store{Folder.Path() / "local.reg", [this](const std::string& computer, std::filesystem::path& file) {
                           file = Folder.Path() / "remote.reg";
                           return computer == "SERVER1" ? registry::Ok : registry::NetworkPathNotFound;
                         }};
  FixedSystem Machine;
  int Yields = 0;
  Reghack Registry{Store, Machine, [this] { ++Yields; }};
};

TEST_F(ReghackTest, ReadsBackWhatItWroteWithTheFinalZeroOfStringsOnly) {
  const struct {
    Value Written;
    std::uint32_t Type;
    std::string Read;
  } cases[] = {{"text", registry::String, "text\0"s}, {"", registry::String, "\0"s},  {7, registry::String, "7\0"s},
               {-65536, registry::Number, "-65536"},  {"12", registry::Number, "12"}, {"x", registry::Binary, "12"}};
  for (const auto& each : cases) {
    Registry.SetKeyValue(Settings, "Value", each.Written, each.Type);
    EXPECT_EQ(Registry.GetKeyValue(Settings, "VALUE"), each.Read);
    EXPECT_EQ(Registry.GetKeyValue64(Settings, "Value"), each.Read);
  }
  EXPECT_THROW(Registry.SetKeyValue(Settings, "Value", "letters", registry::Number), RuntimeError);
}

TEST_F(ReghackTest, WhatIsMissingOrOfAnotherTypeIsAnEmptyText) {
  EXPECT_EQ(Registry.GetKeyValue(Settings, "Missing"), "");
  EXPECT_EQ(Registry.GetKeyValue("Software\\Missing", "Value"), "");
  const RegistryHandle key = Registry.OpenKey(Settings, registry::LocalMachine);
  std::string value = "before";
  EXPECT_EQ(Store.SetValue(key, "Binary", {registry::Binary, "ab"}), registry::Ok);
  EXPECT_EQ(Registry.QueryValueEx(key, "Binary", value), -1);
  EXPECT_EQ(value, "");
  EXPECT_EQ(Registry.QueryValueEx(key, "Missing", value), registry::NotFound);
  EXPECT_EQ(Store.SetValue(key, "Expand", {registry::ExpandString, "%A\0"s}), registry::Ok);
  EXPECT_EQ(Registry.GetKeyValue(Settings, "Expand"), "%A\0"s);
}

TEST_F(ReghackTest, SettingAndDeletingTellWhetherTheyWereDone) {
  using registry::LocalMachine, registry::String;
  EXPECT_FALSE(Registry.SetRemoteKeyValue("Software\\Missing", "Value", "1", String, LocalMachine));
  EXPECT_EQ(Registry.OpenKey("Software\\Missing", LocalMachine), 0U);
  EXPECT_FALSE(Registry.SetRemoteKeyValue(Settings, "a\nb", "1", String, LocalMachine));
  EXPECT_TRUE(Registry.CreateNewRemoteKey("http\\shell", registry::ClassesRoot));
  Registry.SetKeyValueHKCR("http\\shell", "", "browser", String);
  EXPECT_EQ(Registry.GetKeyValueHKCR("http\\shell", ""), "browser\0"s);
  EXPECT_TRUE(Registry.SetRemoteKeyValue(Settings, "Value", "1", String, LocalMachine));
  EXPECT_TRUE(Registry.DeleteKeyValue(Settings, "Value"));
  EXPECT_FALSE(Registry.DeleteKeyValue(Settings, "Value"));
  EXPECT_FALSE(Registry.DeleteKeyValue("Software\\Missing", "Value"));
  EXPECT_FALSE(Registry.DeleteKey("Software", LocalMachine));
  EXPECT_TRUE(Registry.DeleteKey(Settings, LocalMachine));
}

TEST_F(ReghackTest, ReachesTheSameComputerWithAndWithoutBackslashes) {
  for (const char* name : {"SERVER1", "\\\\SERVER1"}) {
    const RegistryHandle remote = Registry.OpenRemoteReg(name, registry::LocalMachine);
    EXPECT_TRUE(Registry.CreateNewRemoteKey("Eventlog", remote));
    EXPECT_TRUE(Registry.SetRemoteKeyValue("Eventlog", "File", name, registry::String, remote));
    EXPECT_EQ(Registry.GetRemoteKeyValue("Eventlog", "File", remote), name + "\0"s);
    Registry.CloseKeyHandle(remote);
    EXPECT_FALSE(Registry.SetRemoteKeyValue("Eventlog", "File", "x", registry::String, remote));
  }
  EXPECT_EQ(Registry.GetKeyValue("Eventlog", "File"), "");
  EXPECT_EQ(Registry.OpenRemoteReg("SERVER2", registry::LocalMachine), 0U);
}

TEST_F(ReghackTest, ListsStringValuesUpToTheEndOrNothing) {
  using registry::MoreData, registry::NoMoreItems, registry::Ok;
  const struct {
    std::vector<long> Statuses;
    std::vector<std::string> Values, Keys;
    int Calls;
  } cases[] = {
      {{NoMoreItems}, {}, {}, 1},
      // The second value is a number: it is left out and its index is used up.
      {{Ok, Ok, MoreData, NoMoreItems}, {"N0", "N2"}, {"K0", "K1", "K2"}, 4},
      {{Ok, Ok, registry::AccessDenied, Ok}, {}, {}, 3},
  };
  std::vector<std::string> names{"left over"}, values{"left over"};
  int count = 99;
  for (const auto& each : cases) {
    Store.Statuses = each.Statuses;
    Yields = 0;
    Registry.EnumSubValues(names, values, count, registry::LocalMachine);
    EXPECT_EQ(names, each.Values);
    EXPECT_EQ(values, std::vector<std::string>(each.Values.size(), "v\0"s));
    EXPECT_EQ(count, static_cast<int>(each.Values.size()));
    EXPECT_EQ(Yields, each.Calls);
    Registry.EnumSubkeys(names, count, registry::LocalMachine);
    EXPECT_EQ(names, each.Keys);
    EXPECT_EQ(count, static_cast<int>(each.Keys.size()));
  }
  Store.Statuses.assign(450, Ok);
  Store.Statuses.push_back(NoMoreItems);
  Store.Long = std::string(300, 'x');
  Registry.EnumSubValues(names, values, count, registry::LocalMachine);
  ASSERT_EQ(count, 449);
  EXPECT_EQ(values[0].size(), 256U);
  EXPECT_EQ(values[448].size(), 255U);
}

TEST_F(ReghackTest, TellsOfTheMachineWhatFitsItsBuffers) {
  EXPECT_EQ(Registry.FindCompName(), "CONSOLE1");
  EXPECT_EQ(Registry.WinDirectory(), "C:\\WINDOWS");
  Machine.Name = std::string(50, 'x');
  Machine.Windows = std::string(144, 'x');
  EXPECT_EQ(Registry.FindCompName() + Registry.WinDirectory(), "");
  Machine.Name = std::nullopt;
  EXPECT_EQ(Registry.FindCompName(), "");
  EXPECT_EQ(Reghack::DeNullString("text"), "tex");
  EXPECT_EQ(Reghack::DeNullString(""), "");
}

}  // namespace
}  // namespace corvane
