#include "core/PrivateProfile.h"

#include <gtest/gtest.h>

#include "adapters/linux/LinuxFiles.h"
#include "adapters/settings/IniFiles.h"
#include "support/TempFolder.h"

namespace corvane {
namespace {

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

TEST_F(PrivateProfileTest, AMissingNumberLeavesWhatCameIn) {
  EXPECT_TRUE(Profile.WriteString("General", "NumComputers", "3"));
  int value = 7;
  EXPECT_TRUE(Profile.GetIntValue("General", "Missing", value));
  EXPECT_EQ(value, 7);
  EXPECT_TRUE(Profile.GetIntValue("general", "numcomputers", value));
  EXPECT_EQ(value, 3);
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

TEST_F(PrivateProfileTest, CreatingTheFileEmptiesIt) {
  EXPECT_TRUE(Profile.WriteString("A", "k", "1"));
  EXPECT_TRUE(Profile.CreateINIFile());
  EXPECT_EQ(Folder.Read("a.ini"), "");
  Profile.FileName = "no/folder/a.ini";
  EXPECT_FALSE(Profile.CreateINIFile());
}

}  // namespace
}  // namespace corvane
