#include "adapters/settings/IniFiles.h"

#include <gtest/gtest.h>

#include <climits>

#include "support/Cases.h"
#include "support/ChildProcess.h"
#include "support/TempFolder.h"

namespace corvane::test {

using namespace std::string_literals;

class IniFilesTest : public testing::Test {
 protected:
  std::string Get(const std::string& section, const std::string& key) {
    std::string value;
    Profiles.GetString(section, key, "-", value, 512, "a.ini");
    return value;
  }
  bool Set(const std::string& section, const std::string& key, const std::string& value) {
    return Profiles.WriteString(section, key, value, "a.ini");
  }

  TempFolder Folder;
  PathMap Map = [this](const std::string& path) { return Folder.Path() / path; };
  IniFiles Profiles{Map};
};

TEST_F(IniFilesTest, FindsValues) {
  for (const auto& one : Cases("settings/IniValues.txt"))
    if (one[0] == "file")
      Folder.Write("a.ini", one[1]);
    else
      EXPECT_EQ(Get(one[0], one[1]), one[2]) << one[0] << one[1];
}

TEST_F(IniFilesTest, CutsValuesToTheBufferAndNumbersAtTheFirstOddCharacter) {
  Folder.Write("a.ini", "[A]\nAnsi=" + std::string(600, '\xE4') + "\n");
  EXPECT_EQ(Get("A", "Ansi").size(), 2 * 511U) << "counted in the characters of the file";
  std::string value;
  EXPECT_EQ(Profiles.GetString("A", "None", "fallback", value, 5, "a.ini"), 4U);
  EXPECT_EQ(value, "fall");
  const std::pair<const char*, int> cases[] = {
      {"12abc", 12}, {"-7", -7}, {"+3", 3}, {"'5'", 5},        {"abc", 0},
      {"", 0},       {"1.9", 1}, {";2", 0}, {"4294967297", 1}, {"2147483648", INT_MIN}};
  for (const auto& [text, number] : cases) {
    Folder.Write("a.ini", "[A]\nN=" + std::string(text) + "\n");
    EXPECT_EQ(Profiles.GetInt("A", "n", 99, "a.ini"), number) << text;
  }
  EXPECT_EQ(Profiles.GetInt("A", "Missing", 99, "a.ini"), 99);
}

TEST_F(IniFilesTest, ListsTheLinesOfASection) {
  Folder.Write("a.ini", "[A]\r\n a = 1 \r\n;x=1\r\n\r\nbare\r\nq=\"x\"\r\ne=\r\nu=\xFC\r\n[B]\r\nb=2\r\n");
  std::string lines;
  EXPECT_EQ(Profiles.GetSection("a", lines, 30000, "a.ini"), 22U);
  EXPECT_EQ(lines, "a=1\0bare\0q=\"x\"\0e=\0u=ü\0"s);
  EXPECT_EQ(Profiles.GetSection("A", lines, 8, "a.ini"), 6U);
}

TEST_F(IniFilesTest, ChangesNothingButTheValueThatIsWritten) {
  for (const auto& one : Cases("settings/IniWrites.txt")) {
    Folder.Write("a.ini", one[0]);
    EXPECT_TRUE(Set(one[1], one[2], one[3])) << one[0];
    EXPECT_EQ(Folder.Read("a.ini"), one[4]) << one[0];
    EXPECT_EQ(Get(one[1], one[2]), one[3].c_str()) << one[0];
  }
}

TEST_F(IniFilesTest, SeesWhatOthersDoToTheFile) {
  // An edit within one step of the file time.
  const auto time = std::filesystem::last_write_time(Folder.Write("a.ini", "[A]\nk=6\n"));
  EXPECT_EQ(Get("A", "k"), "6");
  std::filesystem::last_write_time(Folder.Write("a.ini", "[A]\nk=7\n"), time);
  EXPECT_EQ(Get("A", "k"), "7");
}

TEST_F(IniFilesTest, ProcessesThatWriteAtTheSameTimeLoseNothing) {
  const auto write = [&](const std::string& section) {
    for (int i = 0; i < 70; ++i) Set(section, std::to_string(i), "x");
  };
  const ChildProcess other([&](ChildProcess&) { write("B"); });
  write("A");
  EXPECT_EQ(other.Hear(), 0);
  for (int i = 0; i < 70; ++i) EXPECT_EQ(Get("A", std::to_string(i)) + Get("B", std::to_string(i)), "xx");
}

TEST_F(IniFilesTest, AWriteThatFailsLosesNothing) {
  Set("A", "k", "1");
  const auto file = Folder.Path() / "a.ini";
  const std::string before = Folder.Read("a.ini");
  const auto isRefused = [&] { return !Set("A", "k", std::string(2000, 'x')) && Get("A", "k") == "1"; };
  EXPECT_EQ(OnFullDisk(1000, isRefused), 1);
  EXPECT_EQ(OnFullDisk(1000, [&] { return !Set("A", "new", std::string(2000, 'x')); }), 1) << "at the end, in place";
  EXPECT_EQ(AsNobody(file, 0444, 0777, isRefused), 1);
  EXPECT_EQ(AsNobody(file, 0666, 0555, isRefused), 1);
  EXPECT_EQ(Folder.Read("a.ini"), before);
  EXPECT_FALSE(Profiles.WriteString("A", "k", "2", "no/folder/a.ini"));
}

}  // namespace corvane::test
