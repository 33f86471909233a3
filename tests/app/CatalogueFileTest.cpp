#include "app/installation/CatalogueFile.h"

#include <gtest/gtest.h>

#include <sstream>

#include "app/installation/InstallationError.h"

namespace corvane {
namespace {

Catalogue Parse(const std::string& text) {
  std::istringstream stream(text);
  return CatalogueFile("c.txt").Read(stream);
}

// Two lines that end in a category, and three more that end in a whole alarm of it.
const std::string category = "category Disks\nlog 1 2 | System\n";
const std::string alarm = category + "alarm Bad Block\ncomment Replace it.\nmatch 2 | Error | Disk | 7\n";

TEST(CatalogueFile, ReadsEveryKindOfEntry) {
  const Catalogue read =
      Parse("# head\r\n\r\n" + alarm +
            "alarm Any\ncomment c\nthreshold 3 in 60\nmatch 1 2 | Warning, Failure Audit | any | any\n"
            "alarm Text\ncomment c\nmatch 1 | Error | Ntfs | 55 | some words\nbundle Both\nmember 2 | bad "
            "block\nmember 1 2 | Any\n"
            "notification Desk\nemail a@b.example,c@b.example\npopup PC1\nsyslog host | 514 | 191\n");
  ASSERT_EQ(read.Categories.size(), 2u);
  EXPECT_EQ(read.Categories[1].Index(), "Disks_2");
  ASSERT_EQ(read.Alarms.size(), 4u);
  EXPECT_EQ(read.Alarms[2].Types, 2 + 8);
  EXPECT_EQ(read.Alarms[2].Source, "");
  EXPECT_EQ(read.Alarms[2].EventId, -1);
  EXPECT_EQ(read.Alarms[2].ThresholdTimeout, 60);
  EXPECT_EQ(read.Alarms[3].EventDescription, "some words");
  EXPECT_EQ(read.Alarms[3].ThresholdCount, 0);
  EXPECT_EQ(read.Bundles.at(0).Members, (std::vector<std::size_t>{0, 1, 2}));
  ASSERT_EQ(read.Notifications.size(), 1u);
  EXPECT_EQ(read.Notifications[0].TypesSupported(), 1 + 4 + 16);
  EXPECT_EQ(read.Notifications[0].SyslogPriority, 191);
}

TEST(CatalogueFile, TellsWhichLineBreaksARule) {
  const std::string longName(256, 'n'), longComment(250, 'c'), longEntry(240, 'e');
  const struct {
    std::string Text, Error;
  } cases[] = {
      {"", "c.txt:0: the catalogue holds no alarm"},
      {"colour red\n", "c.txt:1: 'colour' is no keyword"},
      {"category\n", "c.txt:1: 'category' has no value"},
      {"log 1 | System\n", "c.txt:1: 'log' cannot stand here"},
      {"alarm A\n", "c.txt:1: the alarm has no category above it"},
      {"category A\n\ncategory B\n", "c.txt:1: the category stands in no log"},
      {"category A\\B\n", "c.txt:1: the character \\ is not allowed in 'A\\B'"},
      {"category A\nlog 1 | Systems\n", "c.txt:2: 'Systems' is no log"},
      {"category A\nlog 1 | DNS Server\n", "c.txt:2: OS class 1 has no DNS Server log"},
      {category + "log 3\n", "c.txt:3: the value has 1 parts where 2 belong"},
      {alarm + "alarm bad block\n", "c.txt:6: 'bad block' is used for the second time"},
      {alarm + "match 2 | Error | Disk | 8\n", "c.txt:6: 'Bad Block' is used for the second time"},
      {alarm + "match 3 | Error | Disk | 7\n", "c.txt:6: the category does not stand under OS class 3"},
      {alarm + "alarm B\ncomment c\nmatch 2 | Error | DISK | 7\n",
       "c.txt:8: another alarm of OS class 2 has the same criteria"},
      {alarm + "category disks\n", "c.txt:6: 'disks' is used for the second time"},
      {alarm + "alarm B\nmatch 2 | Error | Disk | 8\n", "c.txt:7: the alarm has no comment above its first match"},
      {alarm + "alarm B\ncomment c\n", "c.txt:6: the alarm matches nothing"},
      {alarm + "alarm " + longName + "\n", "c.txt:6: the text has 256 characters, 255 are allowed"},
      {alarm + "alarm B\ncomment it's\n", "c.txt:7: the character ' is not allowed in 'it's'"},
      {alarm + "alarm B\ncomment " + longComment + "\n", "c.txt:7: the text has 250 characters, 249 are allowed"},
      {alarm + "alarm " + longEntry + "\ncomment " + longEntry + "\nmatch 2 | Error | Source | 12\n",
       "c.txt:8: the alarm is too long for the exchange file"},
      {alarm + "threshold 5 per 60\n", "c.txt:6: a threshold has the form COUNT in SECONDS"},
      {alarm + "threshold 1 in 60\n", "c.txt:6: '1' is no number from 2 to 99999"},
      {category + "alarm A\ncomment c\nmatch 2 | Severe | Disk | 7\n", "c.txt:5: 'Severe' is no type of event"},
      {category + "alarm A\ncomment c\nmatch 2 | Error | | 7\n", "c.txt:5: a part of the value is empty"},
      {alarm + "bundle A\n", "c.txt:6: the bundle is empty"},
      {alarm + "bundle A\nmember 1 | Bad Block\n", "c.txt:7: OS class 1 has no alarm 'Bad Block'"},
      {alarm + "bundle A\nmember 2 2 | Bad Block\n", "c.txt:7: 'Bad Block' is used for the second time"},
      {alarm + "notification A\n", "c.txt:6: the notification has no target"},
      {alarm + "notification A\nemail a@b.example, c@b.example\n",
       "c.txt:7: the character   is not allowed in 'a@b.example, c@b.example'"},
      {alarm + "notification A\nsyslog host | 514 | 192\n", "c.txt:7: '192' is no number from 0 to 191"},
  };
  for (const auto& [text, error] : cases) {
    std::string told;
    try {
      Parse(text);
    } catch (const InstallationError& failure) {
      told = failure.what();
    }
    EXPECT_EQ(told, error) << text;
  }
}

}  // namespace
}  // namespace corvane
