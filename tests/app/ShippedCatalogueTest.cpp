#include <gtest/gtest.h>

#include <set>
#include <sstream>

#include "app/installation/Catalogue.h"
#include "app/installation/InstallerCommand.h"
#include "app/installation/TextFile.h"
#include "platform/Conversions.h"
#include "support/TestConsole.h"

namespace corvane::test {

const std::filesystem::path data = CORVANE_SOURCE_DIR "/data";

TEST(ShippedCatalogue, OffersAlarmsInEveryLogOfEveryOsClass) {
  const Catalogue shipped = Installation(data).ReadCatalogue();
  std::set<std::pair<int, int>> covered;
  std::set<std::string> used;
  for (const auto& alarm : shipped.Alarms) {
    covered.insert({alarm.Os, shipped.LogOf(alarm)});
    used.insert(alarm.CategoryIndex());
  }
  EXPECT_GE(shipped.Alarms.size(), 250u);
  EXPECT_EQ(covered.size(), 3u + 6u + 6u);
  EXPECT_EQ(used.size(), shipped.Categories.size()) << "a category without alarms";
}

// Sources match by substring and a bundle serves computers of every class: two members that one event meets would tell
// of it twice.
TEST(ShippedCatalogue, NoEventMeetsTwoMembersOfABundle) {
  const Catalogue shipped = Installation(data).ReadCatalogue();
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

TEST(ShippedCatalogue, AnOlderDatabaseGetsTheNewestClassAtTheStart) {
  const std::string newest =
      "SELECT * FROM OSTypes WHERE [Index] = 3; SELECT * FROM AlarmCategories WHERE OS = 3 ORDER BY [Index];"
      "SELECT Name, Description, AlarmCategory, TypeMask, Source, EventID, EventDescription, ThresholdCount, "
      "ThresholdTimeout FROM Alarms WHERE AlarmCategory LIKE '%_3' ORDER BY Name";
  TestConsole console;
  const std::string fresh = console.Rows(newest);
  console.Rows(
      "DELETE FROM Alarms WHERE AlarmCategory LIKE '%_3'; DELETE FROM AlarmCategories WHERE OS = 3;"
      "DELETE FROM OSTypes WHERE [Index] = 3");
  ASSERT_EQ(console.Rows(newest), "");
  console.Start();
  EXPECT_EQ(console.Rows(newest), fresh);
  EXPECT_FALSE(std::filesystem::exists(console.Folder() / Installation::UpdateFile));
}

TEST(ShippedCatalogue, TheUpdateOfOlderDatabasesIsMadeFromIt) {
  const TempFolder place;
  const std::string made = place.Path() / "made.dat";
  std::ostringstream out;
  ASSERT_EQ(InstallerCommand(data, {}, out, out).Run({"--config-update", made}), 0) << out.str();
  EXPECT_EQ(InstallerCommand(data, {}, out, out).Run({"--config-update", made, place.Path()}), 2);
  EXPECT_EQ(ReadTextFile(made), ReadTextFile(data / Installation::UpdateFile))
      << "make it anew: corvane-install --config-update data/configupdate01.dat";
}

}  // namespace corvane::test
