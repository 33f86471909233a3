#include "adapters/settings/IniFiles.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <climits>

#include "settings/ChildProcess.h"
#include "support/TempFolder.h"

namespace corvane {
namespace {

using namespace std::string_literals;

class IniFilesTest : public testing::Test {
 protected:
  IniFiles Open() {
    return IniFiles([this](const std::string& path) { return Folder.Path() / path; });
  }
  std::string Get(const std::string& section, const std::string& key, const std::string& fallback = "-") {
    std::string value;
    Profiles.GetString(section, key, fallback, value, 512, "a.ini");
    return value;
  }

  bool Set(const std::string& section, const std::string& key, const std::string& value) {
    return Profiles.WriteString(section, key, value, "a.ini");
  }

  test::TempFolder Folder;
  IniFiles Profiles = Open();
};

TEST_F(IniFilesTest, FindsValues) {
  Folder.Write(
      "a.ini",
      "\xEF\xBB\xBF[First] ; x\r\nkey=bom\r\nStray\r\n\r\n  [ Two words ]\n ; Key=comment\nKey = blanks around \t\n"
      "key=second\nDouble=\"  x \"\rSingle='y'\nOdd=\"z'\nInner=a\"b\"\nQuote=\"\nEmpty=\nEq=a=b ; c\nBare\n"
      "Nul=a\0b\nMüller=1\nUtf=M\xC3\xBC\nAnsi=M\xFC \x80\n[two WORDS]\nLate=1\n[Last]\nend=1"s);
  const struct {
    const char *Section, *Key, *Value;
  } cases[] = {{"first", "KEY", "bom"},
               {"First", "Stray", "-"},
               {"Two words", " key ", "blanks around"},
               {"TWO WORDS", "double", "  x "},
               {"Two words", "Single", "y"},
               {"Two words", "Odd", "\"z'"},
               {"Two words", "Inner", "a\"b\""},
               {"Two words", "Quote", "\""},
               {"Two words", "Empty", ""},
               {"Two words", "Eq", "a=b ; c"},
               {"Two words", "Bare", "-"},
               {"Two words", "; Key", "-"},
               {"Two words", "MÜLLER", "1"},
               {"Two words", "Utf", "Mü"},
               {"Two words", "Ansi", "Mü €"},
               {"Two words", "Late", "-"},
               {"Last", "End", "1"},
               {"Nothing", "Key", "-"},
               {"", "Key", "-"}};
  for (const auto& each : cases) EXPECT_EQ(Get(each.Section, each.Key), each.Value) << each.Section << "|" << each.Key;
  EXPECT_EQ(Get("Two words", "Nul"), "a\0b"s);
}

TEST_F(IniFilesTest, CutsValuesToTheBuffer) {
  Folder.Write("a.ini", "[A]\nLong=" + std::string(600, 'x') + "\nAnsi=" + std::string(511, '\xE4') + "\nShort=ab\n");
  std::string value;
  EXPECT_EQ(Profiles.GetString("A", "Long", "", value, 512, "a.ini"), 511U);
  EXPECT_EQ(value, std::string(511, 'x'));
  EXPECT_EQ(Profiles.GetString("A", "Ansi", "", value, 512, "a.ini"), 511U);
  EXPECT_EQ(value.size(), 1022U);
  EXPECT_EQ(Profiles.GetString("A", "Short", "", value, 3, "a.ini"), 2U);
  EXPECT_EQ(Profiles.GetString("A", "None", "fallback", value, 5, "a.ini"), 4U);
  EXPECT_EQ(value, "fall");
  EXPECT_EQ(Profiles.GetString("A", "Short", "", value, 512, "none.ini"), 0U);
}

TEST_F(IniFilesTest, ReadsNumbersUpToTheFirstOddCharacter) {
  const std::pair<const char*, int> cases[] = {
      {"12", 12}, {"12abc", 12}, {"-7", -7}, {"+3", 3},         {"'5'", 5},
      {"abc", 0}, {"", 0},       {"1.9", 1}, {"4294967297", 1}, {"2147483648", INT_MIN}};
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
  EXPECT_EQ(lines, "a=1\0ba"s);
  EXPECT_EQ(Profiles.GetSection("C", lines, 30000, "a.ini"), 0U);
  EXPECT_EQ(lines, "");
}

TEST_F(IniFilesTest, ChangesNothingButTheValueThatIsWritten) {
  const struct {
    std::string Before, Section, Key, Value, After;
  } cases[] = {
      {"", "A", "k", "v", "[A]\r\nk=v\r\n"},
      {"[A]\n Key =\told ;x\n\n;c\n[B]\r\nk=1", "a", "KEY", "new", "[A]\n Key =new\n\n;c\n[B]\r\nk=1"},
      {"[A]\nk=1\n\n \n[B]\n", "A", "n", "2", "[A]\nk=1\nn=2\r\n\n \n[B]\n"},
      {"[A]\nk=1\n;c\n\n[B]\n", "A", "n", "2", "[A]\nk=1\n;c\nn=2\r\n\n[B]\n"},
      {"[A]\n[B]\n", "A", "n", "2", "[A]\nn=2\r\n[B]\n"},
      {"[A]\nk=1", "A", "n", "2", "[A]\nk=1\r\nn=2\r\n"},
      {"[A]", "B", "n", "2", "[A]\r\n[B]\r\nn=2\r\n"},
      {"k=0\r\n\r\n", "", "k", "1", "k=0\r\n\r\n[]\r\nk=1\r\n"},
      {"\xEF\xBB\xBF[A]\nk=1\n", "A", "k", "2", "\xEF\xBB\xBF[A]\nk=2\n"},
      {"x\0y\n[A]\rk=1\r\xFF"s, "A", "k", "", "x\0y\n[A]\rk=\r\xFF"s},
      {"[A]\nk=1\nk=2\n[A]\nk=3\n", "A", "k", "9", "[A]\nk=9\nk=2\n[A]\nk=3\n"},
      {"[A]\nk=1\n", "A", "k", "Mü €", "[A]\nk=M\xFC \x80\n"},
      {"[A]\nk=1\n", "Ä", "ö", "Сервер", "[A]\nk=1\n[\xC4]\r\n\xF6=Сервер\r\n"},
      {"[A]\nk=1\n", "A", "k", "Ã¼", "[A]\nk=Ã¼\n"},
      {"[A]\nk=1\n", "A", "k", "a\0b"s, "[A]\nk=a\n"},
  };
  for (const auto& each : cases) {
    Folder.Write("a.ini", each.Before);
    EXPECT_TRUE(Set(each.Section, each.Key, each.Value)) << each.Before;
    EXPECT_EQ(Folder.Read("a.ini"), each.After) << each.Before;
    EXPECT_EQ(Get(each.Section, each.Key), each.Value.c_str()) << each.Before;
  }
}

TEST_F(IniFilesTest, AValueWithALineBreakIsReadUpToTheBreak) {
  EXPECT_TRUE(Set("A", "k", "one\r\n[B]\r\nx=two"));
  EXPECT_TRUE(Set("A", "n", "1"));
  EXPECT_EQ(Get("A", "k") + Get("B", "x"), "onetwo");
  EXPECT_EQ(Folder.Read("a.ini"), "[A]\r\nk=one\r\nn=1\r\n[B]\r\nx=two\r\n");
}

TEST_F(IniFilesTest, SeesWhatOthersDoToTheFile) {
  Set("A", "k", "1");
  for (const char* text : {"2", "3", "4", "5"}) {
    EXPECT_TRUE(Open().WriteString("A", "k", text, "a.ini"));
    EXPECT_EQ(Get("A", "k"), text);
  }
  Folder.Write("a.ini", "[A]\nk=6\n");
  const auto time = std::filesystem::last_write_time(Folder.Path() / "a.ini");
  EXPECT_EQ(Get("A", "k"), "6");
  // A second edit within one step of the file time.
  Folder.Write("a.ini", "[A]\nk=7\n");
  std::filesystem::last_write_time(Folder.Path() / "a.ini", time);
  EXPECT_EQ(Get("A", "k"), "7");
  std::filesystem::remove(Folder.Path() / "a.ini");
  EXPECT_EQ(Get("A", "k"), "-");
}

TEST_F(IniFilesTest, ProcessesThatWriteAtTheSameTimeLoseNothing) {
  test::InChildren(3, [&](int child) {
    for (int i = 0; i < 50; ++i) Set("A", std::to_string(child) + "_" + std::to_string(i), "x");
  });
  for (int i = 0; i < 150; ++i) EXPECT_EQ(Get("A", std::to_string(i / 50) + "_" + std::to_string(i % 50)), "x");
}

TEST_F(IniFilesTest, AWriteThatFailsLosesNothing) {
  Set("A", "k", "1");
  const std::string before = Folder.Read("a.ini");
  const auto refused = [&]() -> long { return !Set("A", "k", std::string(2000, 'x')) && Get("A", "k") == "1"; };
  EXPECT_EQ(test::WithFullDisk(1000, refused), 1);
  const std::pair<mode_t, mode_t> modes[] = {{0777, 0444}, {0555, 0666}};
  for (const auto& [folder, file] : modes) {
    ASSERT_EQ(::chmod((Folder.Path() / "a.ini").c_str(), file), 0);
    ASSERT_EQ(::chmod(Folder.Path().c_str(), folder), 0);
    EXPECT_EQ(test::AsNobody(refused), 1);
  }
  ASSERT_EQ(::chmod(Folder.Path().c_str(), 0700), 0);
  EXPECT_EQ(Folder.Read("a.ini"), before);
  EXPECT_FALSE(Profiles.WriteString("A", "k", "2", "no/folder/a.ini"));
  EXPECT_FALSE(Profiles.WriteString("A", "k", "2", "."));
}

}  // namespace
}  // namespace corvane
