#include <gtest/gtest.h>
#include <stdlib.h>

#include <ctime>

#include "adapters/linux/LinuxSystem.h"

namespace corvane::test {

TEST(LinuxSystemTest, TellsTheWallClockOfTheZoneInForceAndAFlatName) {
  LinuxSystem system;
  const std::pair<const char*, long> zones[] = {{"UTC0", 0}, {"AAA-5:30", 19800}, {"BBB8", -28800}};
  for (const auto& [zone, offset] : zones) {
    ::setenv("TZ", zone, 1);
    const long long seconds = (system.Now() - MakeDateTime(1970, 1, 1)).count() - offset;
    EXPECT_NEAR(static_cast<double>(seconds), static_cast<double>(std::time(nullptr)), 2) << zone;
  }
  const std::string name = system.ComputerName().value_or("");
  EXPECT_NE(name, "");
  EXPECT_EQ(name.find_first_of(".abcdefghijklmnopqrstuvwxyz"), name.npos);
}

}  // namespace corvane::test
