#include <gtest/gtest.h>
#include <stdlib.h>

#include <algorithm>

#include "adapters/linux/JournalEventReader.h"
#include "adapters/linux/LinuxSystem.h"
#include "support/Cases.h"
#include "support/TestConsole.h"

namespace corvane::test {

namespace fs = std::filesystem;
using Fields = std::vector<std::pair<std::string, std::string>>;

// Two seconds before the summer time of the zone below ends.
constexpr long FirstSecond = 1792889998;

class JournalTest : public testing::Test {
 protected:
  JournalTest() { ::setenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3", 1); }

  // Makes a journal of records, one a second, given in its export format with lengths before the texts, so that these
  // may hold anything.
  fs::path Make(const std::string& name, const std::vector<Fields>& records) {
    const fs::path file = Folder.Path() / name;
    std::string bytes;
    for (std::size_t i = 0; i < records.size(); ++i) {
      bytes += "__REALTIME_TIMESTAMP=" + std::to_string(FirstSecond + static_cast<long>(i)) + "999999\n_TRANSPORT=x\n";
      for (const auto& [field, text] : records[i]) {
        std::string length;
        for (int shift = 0; shift < 64; shift += 8) length += static_cast<char>(text.size() >> shift & 0xFF);
        bytes += field + (text.empty() ? "=" : "\n" + length) + text + "\n";
      }
      bytes += "\n";
    }
    const std::string from = Folder.Write("export", bytes), remote = "/lib/systemd/systemd-journal-remote -o ";
    EXPECT_EQ(std::system((remote + file.string() + " " + from + " >/dev/null 2>&1").c_str()), 0);
    fs::remove(from);
    return file;
  }
  // All records, "source|type|time|description" in a line each; "closed" for a journal that does not open.
  std::string All(const fs::path& journal, const std::string& source = "") {
    JournalEventReader reader(Machine, journal);
    reader.NarrowTo(source);
    return All(reader);
  }
  std::string All(EventReader& reader) {
    if (!reader.Open(Computer, EventReader::ApplicationLog)) return "closed";
    std::string all;
    for (EventRecord record; all.size() < 1000000 && reader.ReadNext(record);)
      all += record.Source + "|" + record.Type + "|" + record.Time + "|" + record.Description + "\n";
    return all;
  }
  static long Lines(const std::string& text) { return std::count(text.begin(), text.end(), '\n'); }

  TempFolder Folder;
  LinuxSystem Machine;
  std::string Computer = Machine.ComputerName().value_or("");
};

TEST_F(JournalTest, RecordsComeNewestFirstAndWhateverTheyHoldIsText) {
  const std::string longest(JournalEventReader::LongestMessage, 'x');
  std::vector<Fields> records;
  std::string newestFirst;
  for (const auto& one : Cases("systemd/Records.txt")) {
    records.emplace_back();
    for (std::size_t i = 0; const char* name : {"SYSLOG_IDENTIFIER", "PRIORITY", "MESSAGE"})
      if (const std::string& text = one[i++]; text != "none") records.back().emplace_back(name, text);
    newestFirst = one[3] + "\n" + newestFirst;
  }
  records.push_back({{"MESSAGE", longest + "x"}});
  EXPECT_EQ(All(Make("all.journal", records)), "|Information|Sun Oct 25 02:00:03 2026|" + longest + "\n" + newestFirst);
}

TEST_F(JournalTest, AReaderForOneSourceStillTellsHowFarBackTheLogReaches) {
  const auto from = [](const char* source) { return Fields{{"SYSLOG_IDENTIFIER", source}, {"MESSAGE", "m"}}; };
  const fs::path ours = Make("ours.journal", {from("Mine"), from("other"), from(" MINE"), from("Mine2"), from("mine")});
  const fs::path others = Make("others.journal", {from("other"), from("Mine"), from("other")});
  const auto line = [](const char* source, const char* time) {
    return std::string(source) + "|Information|Sun Oct 25 " + time + " 2026|m\n";
  };
  const std::string three = line("mine", "02:00:02") + line(" MINE", "02:00:00") + line("Mine", "02:59:58");
  EXPECT_EQ(All(ours, "Mine"), three);
  EXPECT_EQ(All(others, "Mine"), line("Mine", "02:59:59") + line("other", "02:59:58"));
  EXPECT_EQ(All(others, "nobody"), line("other", "02:59:58"));
  EXPECT_EQ(Lines(All(Folder.Path())), 8);
}

TEST_F(JournalTest, WhatIsNoJournalOrADamagedOneDoesNotOpenOrEndsEarly) {
  const fs::path file = Make("whole.journal", std::vector<Fields>(200, {{"SYSLOG_IDENTIFIER", "s"}, {"MESSAGE", "m"}}));
  const std::string whole = Folder.Read("whole.journal");
  fs::create_directory(Folder.Path() / "empty");
  for (const fs::path& path :
       {Folder.Path() / "none", Folder.Path() / "empty", Folder.Write("text", "no journal"),
        Folder.Write("cut", whole.substr(0, whole.size() / 2)), Folder.Write("head", whole.substr(0, 100))})
    EXPECT_EQ(All(path), "closed") << path;
  EXPECT_EQ(Lines(All(file)), 200);
  // With holes anywhere there are no more records than there were.
  for (std::size_t at = 256; at < whole.size(); at += whole.size() / 61) {
    std::string damaged = whole;
    damaged.replace(at, 4096, std::min<std::size_t>(4096, damaged.size() - at), at % 2 == 0 ? '\0' : '\xA5');
    const fs::path hole = Folder.Write("damaged", damaged);
    for (const char* source : {"", "s"}) EXPECT_LE(Lines(All(hole, source)), 200) << at << source;
  }
  JournalEventReader reader(Machine, file);
  EXPECT_FALSE(reader.Open(Computer, 2) || reader.Open(Computer + "X", EventReader::ApplicationLog));
  EventRecord record;
  EXPECT_FALSE(reader.ReadNext(record));
}

TEST_F(JournalTest, TheInstallationNamesTheJournal) {
  const fs::path journal = Make("a.journal", {{{"MESSAGE", "m"}}});
  const TestConsole console(Installation::Kind::Lab, "[Events]\nSource=journal\nPath=" + journal.string() + "\n");
  Computer = console.Ports.System.ComputerName().value_or("");
  EXPECT_EQ(All(console.Ports.EventReader), "|Information|Sun Oct 25 02:59:58 2026|m\n");
}

}  // namespace corvane::test
