#include <gtest/gtest.h>

#include "core/DateText.h"
#include "core/LogTypes.h"
#include "core/PassOver.h"
#include "core/SqlText.h"
#include "core/TimeStamp.h"
#include "platform/ui/UiHost.h"
#include "support/Cases.h"
#include "support/ErrorOf.h"

namespace corvane::test {

TEST(SqlText, DoublesEveryApostropheAndKnowsNoEmptyText) {
  EXPECT_EQ("NULL ' '", QuoteSqlText("") + " " + QuoteSqlText(" "));
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
  for (const auto& c : Cases("core/Dates.txt")) {
    const DateTime time = MakeDateTime(2026, 1, 2, std::stoi(c[0]), std::stoi(c[1]), std::stoi(c[2]));
    EXPECT_EQ(c[3], GeneralDate(time));
    EXPECT_EQ(c[4], ClockText(time));
  }
}

TEST(TimeStamp, HoldsTheDateAndTimeWithoutLeadingZeros) {
  for (const auto& c : Cases("core/Stamps.txt")) {
    std::string stamp;
    const int error = ErrorOf([&] { stamp = TimeStampText(ParseTimeStamp(c[0])); });
    EXPECT_EQ(c[1], error == 0 ? stamp : std::to_string(error)) << c[0];
  }
}

TEST(PassOver, PassesOverErrorsAloneNotTheEndOfTheProgram) {
  EXPECT_TRUE(PassOver([] {}));
  EXPECT_FALSE(PassOver([] { throw RuntimeError(errors::Overflow, "Overflow"); }));
  EXPECT_THROW(PassOver([] { throw ui::ProgramEnd{}; }), ui::ProgramEnd);
}

}  // namespace corvane::test
