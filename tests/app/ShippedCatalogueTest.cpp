#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <set>

#include "app/installation/CatalogueFile.h"
#include "platform/Conversions.h"

namespace corvane::test {

constexpr int Security = 3, Audits = 8 + 16;

class ShippedCatalogue : public testing::Test {
 protected:
  void SetUp() override {
    std::ifstream text(CORVANE_SOURCE_DIR "/data/catalogue.txt");
    shipped_ = CatalogueFile("catalogue.txt").Read(text);
    for (const auto& category : shipped_.Categories) logs_[category.Index()] = category.LogType;
  }

  Catalogue shipped_;
  std::map<std::string, int> logs_;
};

TEST_F(ShippedCatalogue, OffersAlarmsInEveryLogOfEveryOsClass) {
  std::set<std::pair<int, int>> covered;
  std::set<std::string> used;
  for (const auto& alarm : shipped_.Alarms) {
    covered.insert({alarm.Os, logs_.at(alarm.CategoryIndex())});
    used.insert(alarm.CategoryIndex());
  }
  EXPECT_EQ(covered.size(), 3u + 6u + 6u);
  EXPECT_EQ(used.size(), shipped_.Categories.size()) << "a category without alarms";
  EXPECT_GE(shipped_.Alarms.size(), 60u);
  EXPECT_GE(shipped_.Bundles.size(), 4u);
  EXPECT_EQ(shipped_.Notifications.size(), 3u);
}

// Numbers of security audits are those of the event's generation, and only the Security log knows audits.
TEST_F(ShippedCatalogue, EventIdsFitTheirTypeLogAndGeneration) {
  for (const auto& alarm : shipped_.Alarms) {
    const bool audit = logs_.at(alarm.CategoryIndex()) == Security;
    SCOPED_TRACE(alarm.Name + " " + std::to_string(alarm.Os));
    EXPECT_NE(alarm.Types, 0);
    EXPECT_EQ(alarm.Types & (audit ? ~Audits : Audits), 0);
    EXPECT_EQ(alarm.Source.empty(), alarm.EventId == -1);
    if (!audit || alarm.EventId == -1) continue;
    if (alarm.Source == "Microsoft-Windows-Eventlog") {
      EXPECT_TRUE(alarm.Os == 3 && alarm.EventId >= 1100 && alarm.EventId <= 1108);
    } else if (alarm.Os == 3) {
      EXPECT_EQ(alarm.Source, "Microsoft-Windows-Security-Auditing");
      EXPECT_TRUE(alarm.EventId >= 4608 && alarm.EventId <= 5712);
    } else {
      EXPECT_EQ(alarm.Source, "Security");
      EXPECT_TRUE(alarm.EventId >= 512 && alarm.EventId <= (alarm.Os == 1 ? 644 : 861));
    }
  }
}

// Sources match by substring and a bundle serves computers of every class: two members that one event meets would tell
// of it twice.
TEST_F(ShippedCatalogue, NoEventMeetsTwoMembersOfABundle) {
  const auto meet = [](const CatalogueAlarm& a, const CatalogueAlarm& b) {
    const std::string left = UpperCase(a.Source), right = UpperCase(b.Source);
    const std::string text = UpperCase(a.EventDescription), other = UpperCase(b.EventDescription);
    return a.EventId == b.EventId && (a.Types & b.Types) != 0 &&
           (left.find(right) != left.npos || right.find(left) != right.npos) &&
           (text.empty() || other.empty() || text == other);
  };
  for (const auto& bundle : shipped_.Bundles)
    for (std::size_t i = 0; i < bundle.Members.size(); ++i)
      for (std::size_t j = 0; j < i; ++j)
        EXPECT_FALSE(meet(shipped_.Alarms[bundle.Members[i]], shipped_.Alarms[bundle.Members[j]]))
            << bundle.Name << ": " << shipped_.Alarms[bundle.Members[i]].Name;
}

}  // namespace corvane::test
