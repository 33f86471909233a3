#include "platform/Conversions.h"

#include <gtest/gtest.h>

#include <cmath>

#include "platform/RuntimeError.h"
#include "platform/data/Value.h"
#include "support/Cases.h"

namespace corvane::test {

/// The work's result as text, or the number of its error.
template <class Work>
std::string Outcome(Work work) {
  try {
    return std::to_string(work());
  } catch (const RuntimeError& error) {
    return "error " + std::to_string(error.Number);
  }
}

TEST(Conversions, RoundHalvesToEvenAndOverflowWithAnError) {
  for (const auto& one : Cases("platform/WholeNumbers.txt", {{"zeros", std::string(400, '0')}}))
    for (std::size_t i = 1; i < one.size(); ++i) {
      EXPECT_EQ(one[0], Outcome([&] { return TextToInt32(one[i]); })) << one[i];
      EXPECT_EQ(one[0] != "error 13", IsNumeric(one[i])) << one[i];
    }
  EXPECT_EQ("error 6", Outcome([] { return RoundToInt32(std::nan("")); }));
}

TEST(Conversions, ReadUpToTheFirstOddCharacter) {
  for (const auto& one : Cases("platform/Beginnings.txt"))
    for (std::size_t i = 1; i < one.size(); ++i) EXPECT_EQ(std::stod(one[0]), Val(one[i])) << one[i];
}

TEST(Conversions, CompareWithoutCaseUpToLatinLetters) {
  EXPECT_EQ("ÀÖØÞ÷ßÿ€Z", UpperCase("àöøþ÷ßÿ€z"));
  EXPECT_EQ("\xC3", UpperCase("\xC3"));
  // 0xA4 is a letter behind the lead byte C3 alone.
  EXPECT_EQ("\xE2\xA4", UpperCase("\xE2\xA4"));
  for (const auto& one : Cases("platform/Order.txt"))
    EXPECT_EQ(one[2], CompareText(one[0], one[1]) < 0 ? "less"
                      : SameText(one[0], one[1])      ? "same"
                                                      : "more")
        << one[0] << one[1];
  EXPECT_EQ("a b", Trim("  a b "));
  EXPECT_EQ("\ta", Trim(" \ta"));
  EXPECT_EQ("", Trim("   "));
}

TEST(Values, AreReadAsTextNumberAndBoolean) {
  struct {
    Value Stored;
    const char *Text, *Number, *Flag;
  } const cases[] = {{{}, "error 94", "error 94", "error 94"},
                     {std::int64_t{-5}, "-5", "-5", "1"},
                     {std::int64_t{2147483648}, "2147483648", "error 6", "1"},
                     {2.5, "2.5", "2", "1"},
                     {-0.5, "-0.5", "0", "1"},
                     {true, "True", "-1", "1"},
                     {false, "False", "0", "0"},
                     {std::string("tRUE"), "tRUE", "error 13", "1"},
                     {std::string("False"), "False", "error 13", "0"},
                     {std::string("3.5"), "3.5", "4", "1"},
                     {std::string(), "", "error 13", "error 13"},
                     {std::string("1e10"), "1e10", "error 6", "error 6"}};
  for (const auto& c : cases) {
    std::string text;
    const std::string failed = Outcome([&] { return static_cast<int>((text = ToText(c.Stored)).size()); });
    EXPECT_EQ(c.Text, failed.starts_with("error") ? failed : text);
    EXPECT_EQ(c.Number, Outcome([&] { return ToNumber(c.Stored); })) << c.Text;
    EXPECT_EQ(c.Flag, Outcome([&] { return static_cast<int>(ToBoolean(c.Stored)); })) << c.Text;
  }
}

}  // namespace corvane::test
