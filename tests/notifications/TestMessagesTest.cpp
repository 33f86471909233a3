#include "notifications/TestMessages.h"

#include <gtest/gtest.h>

#include "support/Cases.h"

namespace corvane::test {

// Half an hour is fifty hundredths, and no sign stands before a zone to the east.
TEST(TestMessages, TellTheZoneInHundredths) {
  for (const auto& c : Cases("notifications/Zones.txt")) {
    TimeZone zone{std::stoi(c[0]), std::stoi(c[1]), std::stoi(c[2]), std::stoi(c[3]), std::stoi(c[4])};
    zone.Now = static_cast<TimeZone::Season>(std::stoi(c[5]));
    EXPECT_EQ(c[6], ZoneText(zone)) << c[0];
  }
}

TEST(TestMessages, AreBuiltToTheByte) {
  const auto at = [](int day) { return MakeDateTime(2026, 11, day, 4, 5, 6); };
  for (const auto& c : Cases("notifications/SyslogMessages.txt"))
    EXPECT_EQ(c[4], BuildSyslogMessage(std::stoi(c[0]), c[1] == "1", at(std::stoi(c[2])), c[3]));
  const std::string mail = Cases("notifications/Mail.txt")[0][0];
  EXPECT_EQ(mail, BuildTestMessage("a@b.example", "c@d.example", at(9), {300}, true));
  EXPECT_EQ(mail.substr(0, mail.size() - 5), BuildTestMessage("a@b.example", "c@d.example", at(9), {300}, false));
  for (const auto& [host, isAddress] : {std::pair("10.0.0.1", true),
                                        {"10.0.0", false},
                                        {"10.0.0.x", false},
                                        {"1.2.3.4.5", false},
                                        {"999.1e1.0.-1", true},
                                        {"host", false},
                                        {"", false}})
    EXPECT_EQ(isAddress, IsIPAddressText(host)) << host;
}

}  // namespace corvane::test
