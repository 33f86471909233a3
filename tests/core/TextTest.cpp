#include <gtest/gtest.h>

#include "core/DateText.h"
#include "core/LogTypes.h"
#include "core/PassOver.h"
#include "core/SqlText.h"
#include "core/TimeStamp.h"
#include "platform/ui/UiHost.h"
#include "support/ErrorOf.h"

namespace corvane::test {
namespace {

TEST(SqlText, DoublesEveryApostropheAndKnowsNoEmptyText) {
  EXPECT_EQ("NULL", QuoteSqlText(""));
  EXPECT_EQ("' '", QuoteSqlText(" "));
  EXPECT_EQ("'O''Neil \"x\"'", QuoteSqlText("O'Neil \"x\""));
  EXPECT_EQ("", NullToEmpty({}));
}

TEST(LogTypes, NamesAndNumbersAnswerEachOtherExactly) {
  int number = 0;
  for (const char* name :
       {"Application", "System", "Security", "DNS Server", "Directory Service", "File Replication Service"}) {
    EXPECT_EQ(name, LogName(++number));
    EXPECT_EQ(number, LogNumber(name));
    // Only the old routine says so.
    EXPECT_EQ(number == 5 ? "Directory Server" : name, ConvNumToLogType(number));
  }
  for (const char* other : {"application", "Application ", "Directory Server", ""}) EXPECT_EQ(0, LogNumber(other));
  for (const int other : {-1, 0, 7}) EXPECT_EQ("", LogName(other) + ConvNumToLogType(other));
  EXPECT_EQ("server13", MakeIDName("server1", 3));
}

TEST(DateText, LeavesOutMidnightAndCountsHoursToTwelve) {
  struct {
    int Hour, Minute, Second;
    const char *General, *Clock;
  } const cases[] = {{0, 0, 0, "1/2/2026", "12:00:00 AM"},
                     {0, 0, 1, "1/2/2026 12:00:01 AM", "12:00:01 AM"},
                     {11, 59, 59, "1/2/2026 11:59:59 AM", "11:59:59 AM"},
                     {12, 0, 0, "1/2/2026 12:00:00 PM", "12:00:00 PM"},
                     {13, 0, 9, "1/2/2026 1:00:09 PM", "01:00:09 PM"}};
  for (const auto& c : cases) {
    const DateTime time = MakeDateTime(2026, 1, 2, c.Hour, c.Minute, c.Second);
    EXPECT_EQ(c.General, GeneralDate(time));
    EXPECT_EQ(c.Clock, ClockText(time));
  }
}

TEST(TimeStamp, HoldsTheDateAndTimeWithoutLeadingZeros) {
  for (const char* text : {"11_16_2026_14_5_9", "1_1_100_0_0_0", "12_31_9999_23_59_59", "2_29_2028_0_0_1"})
    EXPECT_EQ(TimeStampText(ParseTimeStamp(text)), text);
}

TEST(TimeStamp, PartsBeyondTheirRangeRunOver) {
  EXPECT_EQ(ParseTimeStamp("11_16_2026_25_61_61"), MakeDateTime(2026, 11, 17, 2, 2, 1));
  EXPECT_EQ(ParseTimeStamp("13_0_2026_-1_0_0"), MakeDateTime(2026, 12, 30, 23));
  EXPECT_EQ(ParseTimeStamp(" 1 _2_2026_3_4_5_more"), MakeDateTime(2026, 1, 2, 3, 4, 5));
}

TEST(TimeStamp, RaisesForWhatIsNoStamp) {
  const std::pair<int, std::vector<const char*>> cases[] = {
      {9, {"", "11", "11_16", "11_16_2026", "11_16_2026_14_5"}},
      {13, {"a_b_2026", "__2026_1_1_1", "11_16_2026_14_5_", "x_x_x_x_x_x", "1_1_2026_x"}},
      {6, {"1_1_40000_0_0_0"}},
      {5, {"1_1_99_0_0_0", "1_1_10000_0_0_0", "12_32_9999_0_0_0", "-32768_-32768_100_0_0_0"}}};
  for (const auto& [number, texts] : cases)
    for (const char* text : texts) EXPECT_EQ(number, ErrorOf([&] { ParseTimeStamp(text); })) << text;
}

TEST(PassOver, PassesOverErrorsAloneNotTheEndOfTheProgram) {
  EXPECT_TRUE(PassOver([] {}));
  EXPECT_FALSE(PassOver([] { throw RuntimeError(errors::Overflow, "Overflow"); }));
  EXPECT_THROW(PassOver([] { throw ui::ProgramEnd{}; }), ui::ProgramEnd);
}

}  // namespace
}  // namespace corvane::test
