#include "core/Reghack.h"

#include <gtest/gtest.h>

#include "adapters/linux/LinuxFiles.h"
#include "adapters/linux/LinuxSystem.h"
#include "adapters/settings/IniFiles.h"
#include "adapters/settings/RegistryFileStore.h"
#include "core/PrivateProfile.h"
#include "platform/RuntimeError.h"
#include "support/TempFolder.h"

namespace corvane {

using namespace std::string_literals;

constexpr const char* Settings = "Software\\Tarnwick\\Corvane";

class FixedSystem : public LinuxSystem {
 public:
  std::optional<std::string> ComputerName() override { return Name; }
  std::string WindowsFolder() override { return Windows; }

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
    RegistryFileStore::Create(Folder.Path() / "local.reg");
    EXPECT_TRUE(Registry.CreateNewKey(Settings, registry::LocalMachine));
  }

  test::TempFolder Folder;
  EnumeratingStore Store{Folder.Path() / "local.reg"};
  FixedSystem Machine;
  int Yields = 0;
  Reghack Registry{Store, Machine, [this] { ++Yields; }};
};

TEST_F(ReghackTest, ReadsBackWhatItWroteWithTheFinalZeroOfStringsOnly) {
  const std::tuple<Value, std::uint32_t, std::string> cases[] = {
      {"text", registry::String, "text\0"s}, {"", registry::String, "\0"s},  {7, registry::String, "7\0"s},
      {-65536, registry::Number, "-65536"},  {"12", registry::Number, "12"}, {"x", registry::Binary, "12"}};
  for (const auto& [written, type, read] : cases) {
    Registry.SetKeyValue(Settings, "Value", written, type);
    EXPECT_EQ(Registry.GetKeyValue(Settings, "VALUE"), read);
  }
  EXPECT_THROW(Registry.SetKeyValue(Settings, "Value", "letters", registry::Number), RuntimeError);
  EXPECT_EQ(Registry.GetKeyValue(Settings, "Missing") + Registry.GetKeyValue("Software\\Missing", "Value"), "");
  EXPECT_EQ(Registry.GetKeyValue64(Settings, "Value"), "12");
  const RegistryHandle key = Registry.OpenKey(Settings, registry::LocalMachine);
  Store.SetValue(key, "Binary", {registry::Binary, "ab"});
  std::string value = "before";
  EXPECT_EQ(Registry.QueryValueEx(key, "Binary", value), -1);
  EXPECT_EQ(value, "");
  Store.SetValue(key, "Expand", {registry::ExpandString, "%A\0"s});
  EXPECT_EQ(Registry.GetKeyValue(Settings, "Expand"), "%A\0"s);
}

TEST_F(ReghackTest, SettingAndDeletingTellWhetherTheyWereDone) {
  using registry::LocalMachine, registry::String;
  EXPECT_FALSE(Registry.SetRemoteKeyValue("Software\\Missing", "Value", "1", String, LocalMachine));
  EXPECT_EQ(Registry.OpenKey("Software\\Missing", LocalMachine), 0U);
  EXPECT_TRUE(Registry.CreateNewRemoteKey("http\\shell", registry::ClassesRoot));
  Registry.SetKeyValueHKCR("http\\shell", "", "browser", String);
  EXPECT_EQ(Registry.GetKeyValueHKCR("http\\shell", ""), "browser\0"s);
  EXPECT_TRUE(Registry.SetRemoteKeyValue(Settings, "Value", "1", String, LocalMachine));
  for (const bool done : {true, false}) EXPECT_EQ(Registry.DeleteKeyValue(Settings, "Value"), done);
  EXPECT_FALSE(Registry.DeleteKey("Software", LocalMachine));
  EXPECT_TRUE(Registry.DeleteKey(Settings, LocalMachine));
}

TEST_F(ReghackTest, ListsStringValuesUpToTheEndOrNothing) {
  using registry::MoreData, registry::NoMoreItems, registry::Ok;
  std::vector<std::string> names{"left over"}, values{"left over"};
  int count = 99;
  const auto listed = [&](const std::vector<long>& statuses) {
    Store.Statuses = statuses;
    std::string all;
    Registry.EnumSubValues(names, values, count, registry::LocalMachine);
    for (std::size_t i = 0; i < names.size(); ++i) all += names[i] + "=" + values.at(i);
    all += " " + std::to_string(count);
    Registry.EnumSubkeys(names, count, registry::LocalMachine);
    for (const std::string& name : names) all += " " + name;
    return all + " " + std::to_string(count);
  };
  EXPECT_EQ(listed({NoMoreItems}), " 0 0");
  // The second value is a number: it is left out and its index is used up.
  EXPECT_EQ(listed({Ok, Ok, MoreData, NoMoreItems}), "N0=v\0N2=v\0 2 K0 K1 K2 3"s);
  EXPECT_EQ(listed({Ok, Ok, registry::AccessDenied, Ok}), " 0 0");
  EXPECT_EQ(Yields, 2 * (1 + 4 + 3));
  Store.Statuses.assign(450, Ok);
  Store.Statuses.push_back(NoMoreItems);
  Store.Long = std::string(300, 'x');
  Registry.EnumSubValues(names, values, count, registry::LocalMachine);
  ASSERT_EQ(count, 449);
  EXPECT_EQ(values[0].size(), 256U);
  EXPECT_EQ(values[448].size(), 255U);
}

TEST_F(ReghackTest, TellsOfTheMachineWhatFitsItsBuffers) {
  EXPECT_EQ(Registry.FindCompName() + Registry.WinDirectory(), "CONSOLE1C:\\WINDOWS");
  Machine.Name = std::string(50, 'x');
  Machine.Windows = std::string(144, 'x');
  EXPECT_EQ(Registry.FindCompName() + Registry.WinDirectory(), "");
  Machine.Name = std::nullopt;
  EXPECT_EQ(Registry.FindCompName(), "");
  EXPECT_EQ(Reghack::DeNullString("text"), "tex");
  EXPECT_EQ(Reghack::DeNullString(""), "");
}

class PrivateProfileTest : public testing::Test {
 protected:
  PrivateProfileTest() { Profile.FileName = "a.ini"; }

  test::TempFolder Folder;
  PathMap Paths = [this](const std::string& path) { return Folder.Path() / path; };
  IniFiles Profiles{Paths};
  LinuxFiles Disk{Paths};
  PrivateProfile Profile{Profiles, Disk};
};

TEST_F(PrivateProfileTest, ReadsValuesOfUpTo509Characters) {
  for (const std::size_t length : {0, 1, 509, 510, 600}) {
    const std::string text(length, 'x');
    const bool isRead = length > 0 && length < 510;
    EXPECT_TRUE(Profile.WriteString("Alarms", "AlarmInfo1", text));
    std::string value = "before";
    EXPECT_EQ(Profile.GetStringValue("Alarms", "AlarmInfo1", value), isRead) << length;
    EXPECT_EQ(value, isRead ? text : "") << length;
  }
}

TEST_F(PrivateProfileTest, AMissingNumberLeavesWhatCameInAndCreatingTheFileEmptiesIt) {
  EXPECT_TRUE(Profile.WriteString("General", "NumComputers", "3"));
  int value = 7;
  for (const auto& [name, read] : {std::pair("Missing", 7), {"numcomputers", 3}}) {
    EXPECT_TRUE(Profile.GetIntValue("general", name, value));
    EXPECT_EQ(value, read);
  }
  EXPECT_TRUE(Profile.CreateINIFile());
  EXPECT_EQ(Folder.Read("a.ini"), "");
  Profile.FileName = "no/folder/a.ini";
  EXPECT_FALSE(Profile.CreateINIFile());
}

TEST_F(PrivateProfileTest, CountsTheEqualsSignsWithinTheBuffer) {
  EXPECT_EQ(Profile.GetSectionSize("Alarms"), 0);
  Folder.Write("a.ini", "[Alarms]\r\nAlarmInfo1=a\r\nAlarmInfo2=a=b\r\n");
  EXPECT_EQ(Profile.GetSectionSize("Alarms"), 3);
  // 600 lines of 100 characters, each with its zero: 297 signs lie in the first 29998 characters.
  std::string text = "[Alarms]\r\n";
  for (int i = 1000; i < 1600; ++i) text += std::to_string(i) + "=" + std::string(95, 'x') + "\r\n";
  Folder.Write("a.ini", text);
  EXPECT_EQ(Profile.GetSectionSize("Alarms"), 297);
}

}  // namespace corvane
