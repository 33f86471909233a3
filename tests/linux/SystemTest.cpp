#include <gtest/gtest.h>
#include <stdlib.h>

#include <ctime>

#include "adapters/linux/LinuxSystem.h"

namespace corvane {
namespace {

TEST(LinuxSystemTest, NowIsTheWallClockOfTheZoneInForce) {
  LinuxSystem system;
  const DateTime epoch = MakeDateTime(1970, 1, 1);
  const std::pair<const char*, long> zones[] = {{"UTC0", 0}, {"XXX-5:30", 19800}, {"YYY8", -28800}};
  const char* before = ::getenv("TZ");
  const std::string kept = before ? before : "";
  for (const auto& [zone, offset] : zones) {
    ::setenv("TZ", zone, 1);
    const long long seconds = (system.Now() - epoch).count() - offset;
    EXPECT_NEAR(static_cast<double>(seconds), static_cast<double>(std::time(nullptr)), 2) << zone;
  }
  before ? ::setenv("TZ", kept.c_str(), 1) : ::unsetenv("TZ");
}

TEST(LinuxSystemTest, TheHostNameIsAFlatOne) {
  const std::string name = LinuxSystem().ComputerName().value_or("");
  EXPECT_NE(name, "");
  EXPECT_EQ(name.find_first_of(".abcdefghijklmnopqrstuvwxyz"), name.npos);
}

}  // namespace
}  // namespace corvane
