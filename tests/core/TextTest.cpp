#include <gtest/gtest.h>

#include "core/DateText.h"
#include "core/LogTypes.h"
#include "core/PassOver.h"
#include "core/SqlText.h"
#include "platform/ui/UiHost.h"

namespace corvane::test {
namespace {

TEST(SqlText, DoublesEveryApostropheAndKnowsNoEmptyText) {
  EXPECT_EQ("NULL", QuoteSqlText(""));
  EXPECT_EQ("' '", QuoteSqlText(" "));
  EXPECT_EQ("''''''", QuoteSqlText("''"));
  EXPECT_EQ("'O''Neil \"x\"'", QuoteSqlText("O'Neil \"x\""));
  EXPECT_EQ("", NullToEmpty({}));
  EXPECT_EQ("7", NullToEmpty(std::int64_t{7}));
  EXPECT_EQ("True", NullToEmpty(true));
}

TEST(LogTypes, NamesAndNumbersAnswerEachOtherExactly) {
  const char* const names[] = {
      "Application", "System", "Security", "DNS Server", "Directory Service", "File Replication Service"};
  for (int i = 0; i < 6; ++i) {
    EXPECT_EQ(names[i], LogName(i + 1));
    EXPECT_EQ(i + 1, LogNumber(names[i]));
  }
  for (const char* other : {"application", "Application ", "Directory Server", ""}) EXPECT_EQ(0, LogNumber(other));
  for (const int other : {-1, 0, 7}) EXPECT_EQ("", LogName(other));
  EXPECT_EQ("SERVER13", MakeIDName("SERVER1", 3));
  EXPECT_EQ("server13", MakeIDName("server1", 3));
}

TEST(DateText, LeavesOutMidnightAndCountsHoursToTwelve) {
  struct {
    int Hour, Minute, Second;
    const char *General, *Clock;
  } const cases[] = {
      {0, 0, 0, "1/2/2026", "12:00:00 AM"},
      {0, 0, 1, "1/2/2026 12:00:01 AM", "12:00:01 AM"},
      {9, 5, 0, "1/2/2026 9:05:00 AM", "09:05:00 AM"},
      {11, 59, 59, "1/2/2026 11:59:59 AM", "11:59:59 AM"},
      {12, 0, 0, "1/2/2026 12:00:00 PM", "12:00:00 PM"},
      {13, 0, 9, "1/2/2026 1:00:09 PM", "01:00:09 PM"},
      {23, 30, 0, "1/2/2026 11:30:00 PM", "11:30:00 PM"},
  };
  for (const auto& c : cases) {
    const DateTime time = MakeDateTime(2026, 1, 2, c.Hour, c.Minute, c.Second);
    EXPECT_EQ(c.General, GeneralDate(time));
    EXPECT_EQ(c.Clock, ClockText(time));
  }
}

TEST(PassOver, PassesOverErrorsAloneNotTheEndOfTheProgram) {
  EXPECT_TRUE(PassOver([] {}));
  EXPECT_FALSE(PassOver([] { throw RuntimeError(errors::Overflow, "Overflow"); }));
  EXPECT_THROW(PassOver([] { throw ui::ProgramEnd{}; }), ui::ProgramEnd);
}

}  // namespace
}  // namespace corvane::test
