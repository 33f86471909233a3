#include <gtest/gtest.h>
#include <stdlib.h>

#include <ctime>
#include <vector>

#include "adapters/linux/LinuxSystem.h"

namespace corvane::test {

TEST(LinuxSystemTest, TellsTheWallClockOfTheZoneInForceAndAFlatName) {
  LinuxSystem system;
  const std::pair<const char*, long> zones[] = {{"UTC0", 0}, {"AAA-5:30", 19800}, {"BBB8", -28800}};
  for (const auto& [zone, offset] : zones) {
    ::setenv("TZ", zone, 1);
    const long long seconds = (system.Now() - MakeDateTime(1970, 1, 1)).count() - offset;
    EXPECT_NEAR(static_cast<double>(seconds), static_cast<double>(std::time(nullptr)), 2) << zone;
    EXPECT_EQ(-offset / 60, system.TimeZone().Bias);
    EXPECT_EQ(0, system.TimeZone().DaylightMonth);
  }
  ::setenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3", 1);
  const TimeZone seasons = system.TimeZone();
  EXPECT_EQ((std::vector{-60, 0, -60, 10, 3}), (std::vector{seasons.Bias, seasons.StandardBias, seasons.DaylightBias,
                                                            seasons.StandardMonth, seasons.DaylightMonth}));
  const std::string name = system.ComputerName().value_or("");
  EXPECT_NE(name, "");
  EXPECT_EQ(name.find_first_of(".abcdefghijklmnopqrstuvwxyz"), name.npos);
}

}  // namespace corvane::test
