#include "app/installation/CatalogueFile.h"

#include <gtest/gtest.h>

#include <functional>
#include <sstream>

#include "app/installation/BasicChoicesFile.h"
#include "app/installation/InstallationError.h"
#include "support/Cases.h"

namespace corvane::test {

static Catalogue Parse(const std::string& text) {
  std::istringstream stream(text);
  return CatalogueFile("c.txt").Read(stream);
}

// Two lines that end in a category, and three more that end in a whole alarm of it.
const std::string category = "category Disks\nlog 1 2 | System\n";
const std::string audits = "category Audits\nlog 1 2 3 | Security\nalarm A\ncomment c\n";
const std::string alarm = category + "alarm Bad Block\ncomment Replace it.\nmatch 2 | Error | Disk | 7\n";

TEST(CatalogueFile, ReadsEveryKindOfEntry) {
  const Catalogue read =
      Parse("# head\r\n\r\n" + alarm +
            "alarm Any\ncomment c\nthreshold 3 in 60\nmatch 1 2 | Warning, Error | any | any\n"
            "alarm Text\ncomment c\nmatch 1 | Error | Ntfs | 55 | some words\nbundle Both\nmember 2 | bad "
            "block\nmember 1 2 | Any\n"
            "notification Desk\nemail a@b.example,c@b.example\npopup PC1\nsyslog host | 514 | 191\n");
  EXPECT_EQ(read.Categories.at(1).Index(), "Disks_2");
  ASSERT_EQ(read.Alarms.size(), 4u);
  EXPECT_EQ(read.Alarms[2].Types, 2 + 4);
  EXPECT_EQ(read.Alarms[2].Source, "");
  EXPECT_EQ(read.Alarms[2].EventId, -1);
  EXPECT_EQ(read.Alarms[2].ThresholdTimeout, 60);
  EXPECT_EQ(read.Alarms[3].EventDescription, "some words");
  EXPECT_EQ(read.Bundles.at(0).Members, (std::vector<std::size_t>{0, 1, 2}));
  EXPECT_EQ(read.Notifications.at(0).TypesSupported(), 1 + 4 + 16);
  EXPECT_EQ(read.Notifications[0].SyslogPriority, 191);
}

static std::string Told(const std::function<void()>& work) {
  try {
    work();
  } catch (const InstallationError& failure) {
    return failure.what();
  }
  return "";
}

TEST(CatalogueFile, TellsWhichLineBreaksARule) {
  for (const auto& one :
       Cases("app/CatalogueErrors.txt", {{"category", category}, {"alarm", alarm}, {"audits", audits}}))
    EXPECT_EQ(Told([&] { Parse(one[0]); }), one[1]) << one[0];
}

TEST(BasicChoicesFile, TellsWhichRowBreaksARule) {
  Catalogue catalogue = Parse(alarm +
                              "alarm Dying\ncomment c\nmatch 2 | Error, Warning | Disk | 52\n"
                              "alarm All Errors\ncomment c\nmatch 2 | Error | any | any\n"
                              "alarm All Warnings\ncomment c\nmatch 2 | Warning | any | any\n"
                              "category Audits\nlog 1 2 | Security\n"
                              "alarm Cleared\ncomment c\nmatch 1 | Success Audit | Security | 517\n"
                              "alarm Locked\ncomment c\nmatch 2 | Success Audit | Security | 644\n");
  const std::string rows = "All Warnings|-1|2\nAll Errors|-1|4\n";
  const auto told = [&](const std::string& text) {
    std::istringstream stream(text);
    return Told([&] { BasicChoicesFile("c.txt", catalogue).Check(stream); });
  };
  for (const auto& one : Cases("app/CatalogueChoices.txt", {{"rows", rows}})) EXPECT_EQ(told(one[0]), one[1]) << one[0];
  for (CatalogueAlarm& any : catalogue.Alarms)
    if (any.EventId == -1) any.Name += " of Disks";
  EXPECT_EQ(told(rows), "c.txt:1: event ID -1 takes no alarm");
}

}  // namespace corvane::test
