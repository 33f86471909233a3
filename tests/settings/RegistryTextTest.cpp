#include "adapters/settings/RegistryText.h"

#include <gtest/gtest.h>

namespace corvane::settings {
namespace {

using namespace std::string_literals;

const std::string Head = "Corvane Registry Version 1.00\n";

RegistryValue Text(const std::string& plain) { return {registry::String, plain + '\0'}; }

TEST(RegistryText, WritesEachKindOfValueAndReadsItBack) {
  const struct {
    const char* Name;
    RegistryValue Value;
    const char* Line;
  } cases[] = {
      {"Created", Text("1"), R"("Created"="1")"},
      {"", Text("default"), R"(@="default")"},
      {"Path", Text(R"(C:\Corvane\"x")"), R"("Path"="C:\\Corvane\\\"x\"")"},
      {R"(a\"b)", Text("Müller; [x]=y "), R"("a\\\"b"="Müller; [x]=y ")"},
      {"Empty", Text(""), R"("Empty"="")"},
      {"Rest", {registry::Number, "\x10\x27\0\0"s}, R"("Rest"=dword:00002710)"},
      {"Retention", {registry::Number, "\xFF\xFF\xFF\xFF"}, R"("Retention"=dword:ffffffff)"},
      {"File", {registry::ExpandString, "%A\0"s}, R"("File"=hex(2):25,41,00)"},
      {"Binary", {registry::Binary, "\0\xFF"s}, R"("Binary"=hex:00,ff)"},
      {"Multi", {registry::MultiString, "a\0\0"s}, R"("Multi"=hex(7):61,00,00)"},
      {"NoZero", {registry::String, "ab"}, R"("NoZero"=hex(1):61,62)"},
      {"Lines", Text("a\r\nb"), R"("Lines"=hex(1):61,0d,0a,62,00)"},
      {"TwoZeros", Text("a\0"s), R"("TwoZeros"=hex(1):61,00,00)"},
      {"Nothing", {registry::Binary, ""}, R"("Nothing"=hex:)"},
      {"Short", {registry::Number, "\x01"}, R"("Short"=hex(4):01)"},
  };
  RegistryKey top;
  RegistryKey& key = top.Make(R"(HKEY_LOCAL_MACHINE\Software\A b)");
  std::string expected =
      Head + "\n[HKEY_LOCAL_MACHINE]\n\n[HKEY_LOCAL_MACHINE\\Software]\n\n" + "[HKEY_LOCAL_MACHINE\\Software\\A b]\n";
  for (const auto& each : cases) {
    key.Values.Make(each.Name).Value = each.Value;
    expected.append(each.Line).append("\n");
  }
  EXPECT_EQ(FormatRegistry(top), expected);

  RegistryKey read;
  ASSERT_TRUE(ParseRegistry(expected, read));
  for (const auto& each : cases) {
    const RegistryEntry* entry = read.Find(R"(hkey_local_machine\SOFTWARE\a B)")->Values.Find(each.Name);
    ASSERT_TRUE(entry) << each.Line;
    EXPECT_EQ(entry->Value.Type, each.Value.Type) << each.Line;
    EXPECT_EQ(entry->Value.Bytes, each.Value.Bytes) << each.Line;
  }
}

TEST(RegistryText, ReadsWhatAnAdministratorTypes) {
  const std::string text =
      "\xEF\xBB\xBF"
      "Corvane Registry Version 1.00\r\n; a comment\r\n\r\n  [HKEY_CLASSES_ROOT\\http]  \r\n"
      "\t\"Path\" = \"C:\\New folder\\x.mdb\"\r\n\"N\"=dword:a\r\n\"B\"=hex:01, 02,\\\r\n  03\r\n\"path\"=\"again\"";
  RegistryKey top;
  ASSERT_TRUE(ParseRegistry(text, top));
  const RegistryKey* key = top.Find(R"(HKEY_CLASSES_ROOT\http)");
  ASSERT_TRUE(key);
  EXPECT_EQ(key->Values.Size(), 3U);
  EXPECT_EQ(key->Values[0].Name, "Path");
  EXPECT_EQ(key->Values[0].Value.Bytes, "again\0"s);
  EXPECT_EQ(key->Values[1].Value.Bytes, "\x0A\0\0\0"s);
  EXPECT_EQ(key->Values[2].Value.Bytes, "\1\2\3");

  RegistryKey other;
  ASSERT_TRUE(ParseRegistry(Head + "[A]\n\"Path\"=\"C:\\New\\x\"\n", other));
  EXPECT_EQ(other.Find("A")->Values[0].Value.Bytes, "C:\\New\\x\0"s);
}

TEST(RegistryText, RefusesWhatIsNoRegistry) {
  std::string deep = Head + "[A";
  for (int i = 0; i < RegistryKey::MaxDepth; ++i) deep += "\\a";
  for (const std::string& text : {""s,
                                  "[A]\n"s,
                                  "Corvane Registry Version 2.00\n"s,
                                  Head + "\"x\"=\"1\"\n",
                                  Head + "[A\n",
                                  Head + "[]\n",
                                  Head + "[\\]\n",
                                  Head + "[A]\nx=1\n",
                                  Head + "[A]\n\"x\"\n",
                                  Head + "[A]\n\"x\"=\"1\n",
                                  Head + "[A]\n\"x\"=\"1\"2\n",
                                  Head + "[A]\n\"x\"=dword:\n",
                                  Head + "[A]\n\"x\"=dword:123456789\n",
                                  Head + "[A]\n\"x\"=hex:100\n",
                                  Head + "[A]\n\"x\"=hex:0g\n",
                                  Head + "[A]\n\"x\"=hex(2:00\n",
                                  Head + "[A]\n\"x\"=hex:01,\\",
                                  Head + "[A]\n\"x\"=-1\n",
                                  Head + "[A]\n\"x\"=\"a\0b\"\n"s,
                                  Head + "[A\tB]\n",
                                  deep + "]\n"}) {
    RegistryKey top;
    EXPECT_FALSE(ParseRegistry(text, top)) << text;
  }
}

}  // namespace
}  // namespace corvane::settings
