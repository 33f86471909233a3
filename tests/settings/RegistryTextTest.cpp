#include "adapters/settings/RegistryText.h"
#include "support/Cases.h"

#include <gtest/gtest.h>

namespace corvane::settings {

using namespace std::string_literals;

const std::string Head = "Corvane Registry Version 1.00\n";

TEST(RegistryText, WritesEachKindOfValueAndReadsItBack) {
  RegistryKey top, read, typed;
  RegistryKey& key = top.Make(R"(HKEY_LOCAL_MACHINE\A b)");
  std::string expected = Head + "\n[HKEY_LOCAL_MACHINE]\n\n[HKEY_LOCAL_MACHINE\\A b]\n";
  for (const auto& one : test::Cases("settings/RegistryValues.txt")) {
    key.Values.Make(one[0]).Value = {static_cast<std::uint32_t>(std::stoul(one[1])), one[2]};
    expected += one[3] + "\n";
  }
  EXPECT_EQ(FormatRegistry(top), expected);
  ASSERT_TRUE(ParseRegistry(expected, read));
  EXPECT_EQ(FormatRegistry(read), expected);

  // As an administrator types it.
  ASSERT_TRUE(ParseRegistry(ReadTextFile(CORVANE_SOURCE_DIR "/tests/settings/typed.reg"), typed));
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
  for (const auto& one : test::Cases("settings/RegistryMistakes.txt"))
    EXPECT_FALSE(ParseRegistry(Head + "[A]\n" + one[0], top)) << one[0];
}

}  // namespace corvane::settings
