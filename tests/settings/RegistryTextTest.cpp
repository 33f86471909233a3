#include "adapters/settings/RegistryText.h"

#include <gtest/gtest.h>

namespace corvane::settings {
namespace {

using namespace std::string_literals;

const std::string Head = "Corvane Registry Version 1.00\n";

TEST(RegistryText, WritesEachKindOfValueAndReadsItBack) {
  const std::tuple<const char*, RegistryValue, const char*> cases[] = {
      {"", {1, "default\0"s}, R"(@="default")"},
      {"Path", {1, "C:\\Corvane\\\"x\"\0"s}, R"("Path"="C:\\Corvane\\\"x\"")"},
      {R"(a\"b)", {1, "Müller; [x]=y \0"s}, R"("a\\\"b"="Müller; [x]=y ")"},
      {"Empty", {1, "\0"s}, R"("Empty"="")"},
      {"Rest", {4, "\x10\x27\0\xFF"s}, R"("Rest"=dword:ff002710)"},
      {"File", {2, "%A\0"s}, R"("File"=hex(2):25,41,00)"},
      {"Binary", {3, "\0\xFF"s}, R"("Binary"=hex:00,ff)"},
      {"NoZero", {1, "ab"}, R"("NoZero"=hex(1):61,62)"},
      {"Lines", {1, "a\r\n\0"s}, R"("Lines"=hex(1):61,0d,0a,00)"},
      {"TwoZeros", {1, "a\0\0"s}, R"("TwoZeros"=hex(1):61,00,00)"},
      {"Nothing", {3, ""}, R"("Nothing"=hex:)"},
  };
  RegistryKey top, read, typed;
  RegistryKey& key = top.Make(R"(HKEY_LOCAL_MACHINE\A b)");
  std::string expected = Head + "\n[HKEY_LOCAL_MACHINE]\n\n[HKEY_LOCAL_MACHINE\\A b]\n";
  for (const auto& [name, value, line] : cases) {
    key.Values.Make(name).Value = value;
    expected.append(line).append("\n");
  }
  EXPECT_EQ(FormatRegistry(top), expected);
  ASSERT_TRUE(ParseRegistry(expected, read));
  EXPECT_EQ(FormatRegistry(read), expected);

  // As an administrator types it.
  ASSERT_TRUE(ParseRegistry(
      "\xEF\xBB\xBF"
      "Corvane Registry Version 1.00\r\n; a comment\r\n\r\n  [A\\b]  \r\n"
      "\t\"Path\" = \"x\"\r\n\"N\"=dword:a\r\n\"B\"=hex:01, 02,\\\r\n  03\r\n\"path\"=\"C:\\New folder\\x.mdb\"",
      typed));
  EXPECT_EQ(FormatRegistry(typed), Head +
                                       "\n[A]\n\n[A\\b]\n\"Path\"=\"C:\\\\New folder\\\\x.mdb\"\n"
                                       "\"N\"=dword:0000000a\n\"B\"=hex:01,02,03\n");
}

TEST(RegistryText, RefusesWhatIsNoRegistry) {
  RegistryKey top;
  std::string deep = Head + "[A";
  for (int i = 0; i < RegistryKey::MaxDepth; ++i) deep += "\\a";
  for (const std::string& text : {""s, "[A]\n"s, "Corvane Registry Version 2.00\n"s, deep + "]", Head + "\"x\"=\"1\""})
    EXPECT_FALSE(ParseRegistry(text, top)) << text;
  for (const std::string& line : {"[A"s, "[]"s, "[\\]"s, "[A\tB]"s, "x=1"s, "\"x\""s, "\"x\"=\"1"s, "\"x\"=\"1\"2"s,
                                  "\"x\"=dword:"s, "\"x\"=dword:123456789"s, "\"x\"=hex:100"s, "\"x\"=hex:0g"s,
                                  "\"x\"=hex(2:00"s, "\"x\"=hex:01,\\"s, "\"x\"=-1"s, "\"x\"=\"a\0b\""s})
    EXPECT_FALSE(ParseRegistry(Head + "[A]\n" + line, top)) << line;
}

}  // namespace
}  // namespace corvane::settings
