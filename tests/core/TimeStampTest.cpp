#include "core/TimeStamp.h"

#include <gtest/gtest.h>

#include "platform/RuntimeError.h"

namespace corvane {
namespace {

TEST(TimeStamp, HoldsTheDateAndTimeWithoutLeadingZeros) {
  EXPECT_EQ(TimeStampText(MakeDateTime(2026, 11, 16, 14, 5, 9)), "11_16_2026_14_5_9");
  for (const char* text : {"11_16_2026_14_5_9", "1_1_100_0_0_0", "12_31_9999_23_59_59", "2_29_2028_0_0_1"})
    EXPECT_EQ(TimeStampText(ParseTimeStamp(text)), text);
}

TEST(TimeStamp, PartsBeyondTheirRangeRunOver) {
  EXPECT_EQ(ParseTimeStamp("11_16_2026_25_61_61"), MakeDateTime(2026, 11, 17, 2, 2, 1));
  EXPECT_EQ(ParseTimeStamp("13_0_2026_-1_0_0"), MakeDateTime(2026, 12, 30, 23));
  EXPECT_EQ(ParseTimeStamp(" 1 _2_2026_3_4_5_more"), MakeDateTime(2026, 1, 2, 3, 4, 5));
}

TEST(TimeStamp, RaisesForWhatIsNoStamp) {
  const std::pair<const char*, int> cases[] = {{"", 9},
                                               {"11", 9},
                                               {"11_16", 9},
                                               {"11_16_2026", 9},
                                               {"11_16_2026_14_5", 9},
                                               {"a_b_2026", 13},
                                               {"__2026_1_1_1", 13},
                                               {"11_16_2026_14_5_", 13},
                                               {"x_x_x_x_x_x", 13},
                                               {"1_1_2026_x", 13},
                                               {"1_1_40000_0_0_0", 6},
                                               {"1_1_99_0_0_0", 5},
                                               {"1_1_10000_0_0_0", 5},
                                               {"12_32_9999_0_0_0", 5},
                                               {"-32768_-32768_100_0_0_0", 5}};
  for (const auto& [text, number] : cases) {
    try {
      ParseTimeStamp(text);
      ADD_FAILURE() << text;
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Number, number) << text;
    }
  }
}

}  // namespace
}  // namespace corvane
