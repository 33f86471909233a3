#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <set>

#include "app/installation/CatalogueFile.h"
#include "platform/Conversions.h"

namespace corvane::test {

constexpr int Security = 3, Audits = 8 + 16;

static Catalogue Shipped() {
  std::ifstream text(CORVANE_SOURCE_DIR "/data/catalogue.txt");
  return CatalogueFile("catalogue.txt").Read(text);
}

// Only the Security log knows audits.
TEST(ShippedCatalogue, OffersAlarmsThatFitInEveryLogOfEveryOsClass) {
  const Catalogue shipped = Shipped();
  std::map<std::string, int> logs;
  for (const auto& category : shipped.Categories) logs[category.Index()] = category.LogType;
  std::set<std::pair<int, int>> covered;
  std::set<std::string> used;
  for (const auto& alarm : shipped.Alarms) {
    const int log = logs.at(alarm.CategoryIndex());
    covered.insert({alarm.Os, log});
    used.insert(alarm.CategoryIndex());
    EXPECT_NE(alarm.Types, 0) << alarm.Name;
    EXPECT_EQ(alarm.Types & (log == Security ? ~Audits : Audits), 0) << alarm.Name;
    EXPECT_EQ(alarm.Source.empty(), alarm.EventId == -1) << alarm.Name;
  }
  EXPECT_EQ(covered.size(), 3u + 6u + 6u);
  EXPECT_EQ(used.size(), shipped.Categories.size()) << "a category without alarms";
}

// Sources match by substring and a bundle serves computers of every class: two members that one event meets would tell
// of it twice.
TEST(ShippedCatalogue, NoEventMeetsTwoMembersOfABundle) {
  const Catalogue shipped = Shipped();
  const auto meet = [](const CatalogueAlarm& a, const CatalogueAlarm& b) {
    const std::string left = UpperCase(a.Source), right = UpperCase(b.Source);
    const std::string text = UpperCase(a.EventDescription), other = UpperCase(b.EventDescription);
    return a.EventId == b.EventId && (a.Types & b.Types) != 0 &&
           (left.find(right) != left.npos || right.find(left) != right.npos) &&
           (text.empty() || other.empty() || text == other);
  };
  for (const auto& bundle : shipped.Bundles)
    for (std::size_t i = 0; i < bundle.Members.size(); ++i)
      for (std::size_t j = 0; j < i; ++j)
        EXPECT_FALSE(meet(shipped.Alarms[bundle.Members[i]], shipped.Alarms[bundle.Members[j]]))
            << bundle.Name << ": " << shipped.Alarms[bundle.Members[i]].Name;
}

}  // namespace corvane::test
