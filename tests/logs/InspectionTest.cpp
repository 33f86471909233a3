#include "adapters/lab/LabChannelReader.h"
#include "adapters/lab/LabEventLogs.h"
#include "core/RemoteLogs.h"
#include "logs/LogEditFixture.h"
#include "logs/LogInspection.h"
#include "platform/RuntimeError.h"
#include "support/Cases.h"
#include "support/ReplacedPorts.h"

namespace corvane::test {

// A classic log whose second reading can fail, which the lab's logs never do.
class FailingLogs : public LabEventLogs {
 public:
  using LabEventLogs::LabEventLogs;
  bool GetOldestRecord(EventLogHandle log, std::uint32_t& number) override {
    return LabEventLogs::GetOldestRecord(log, number) && !OldestFails;
  }
  bool GetNumberOfRecords(EventLogHandle log, std::uint32_t& count) override {
    return LabEventLogs::GetNumberOfRecords(log, count) && OldestFails;
  }
  bool OldestFails = false;
};

class CountersTest : public LogEditTest {
 protected:
  std::string Read(const std::string& computer, const std::string& log = "System") {
    RecordCounters counters;
    EXPECT_EQ(CountersResult::Read, ReadRecordCounters(Main, computer, log, counters));
    return std::to_string(counters.First) + " " + std::to_string(counters.Second);
  }
  void SetLog(const std::string& computer, const std::string& value) {
    Console.SetLab("Computer " + computer, "Log System", value);
  }
};

// The same log tells other numbers as a classic log than as a channel; the service reads the rows as they are.
TEST_F(CountersTest, ClassicLogsAndChannelsCountDifferently) {
  for (const auto& c : Cases("logs/Counters.txt")) {
    for (const char* computer : {"MERFILE01", "MERDC01"}) SetLog(computer, c[0]);
    EXPECT_EQ(c[1], Read("MERFILE01")) << c[0];
    EXPECT_EQ(c[2], Read("\\\\MERDC01")) << c[0];
  }
  // Without a log file the channel's own handle stays open: left so, and watched here for not growing elsewhere.
  const auto& reader = dynamic_cast<LabChannelReader&>(*Main.ChannelReader);
  EXPECT_EQ(0u, reader.OpenHandles());
  SetLog("MERDC01", "oldest 1, count 5, off");
  EXPECT_EQ("0 0", Read("MERDC01"));
  EXPECT_EQ(1u, reader.OpenHandles());
  // The sum itself must fit, before one is taken from it.
  for (const char* computer : {"MERFILE01", "MERDC01"}) {
    SetLog(computer, "oldest 2147483600, count 48");
    EXPECT_THROW(Read(computer), RuntimeError) << computer;
  }
}

TEST_F(CountersTest, WhatCannotBeReadCountsNothing) {
  for (const char* computer : {"MERBACKUP", "NOSUCHPC"}) EXPECT_EQ("0 0", Read(computer));
  EXPECT_EQ(Read("MERFILE01", "Application"), Read("MERFILE01", "DNS Server")) << "which it does not have";
  LabNetwork network(Console.Folder() / Installation::LabFile);
  FailingLogs logs(network);
  Platform ports = Replace(Console.Ports, {.EventLogs = &logs});
  modMain main(ports);
  for (const bool oldestFails : {true, false}) {
    logs.OldestFails = oldestFails;
    RecordCounters counters{7, 7};
    EXPECT_EQ(CountersResult::Read, ReadRecordCounters(main, "MERFILE01", "System", counters));
    EXPECT_EQ(0, counters.First + counters.Second);
  }
  EXPECT_EQ(0u, logs.OpenHandles());
}

TEST_F(LogEditTest, RemoteLogsExistWhereTheRegistryNamesAFile) {
  Console.SetLab("Lab", "TimeoutMs", "1");
  for (const auto& c : Cases("logs/RemoteLogs.txt"))
    EXPECT_EQ(c[2], LogExistsOnComputer(Main, c[0], c[1]) ? "yes" : "no") << c[0] << c[1];
}

class PaneTest : public LogEditTest {
 protected:
  std::string LinesOf(const std::function<void(ui::ListBox&)>& fill) {
    ui::Form form(Host, "pane");
    ui::ListBox lines(form, "lines");
    fill(lines);
    std::string all;
    for (const std::string& line : lines.All()) all += line + "\n";
    return all;
  }
};

TEST_F(PaneTest, TellsPingSystemAndRecords) {
  const auto inspect = [&](const std::string& computer) {
    return LinesOf([&](ui::ListBox& lines) { InspectComputerAndLog(Main, computer, "System", lines); });
  };
  const std::string unknown = inspect("NOSUCHPC"), refused = inspect("HBRFILE2");
  EXPECT_NE(std::string::npos, unknown.find("Error during ping attempt: ")) << unknown;
  EXPECT_EQ(2, std::count(unknown.begin(), unknown.end(), '\n') - 1) << unknown;
  EXPECT_TRUE(
      refused.ends_with("The operating system running on HBRFILE2 could not be determined.\n"
                        "The number of entries in the System log on HBRFILE2 could not be determined.\n"))
      << refused;
  Console.SetLab("Computer MERFILE01", "Log System", "oldest 3, count 1234");
  for (const auto& c : Cases("logs/Panes.txt")) {
    Main.Registry.SetKeyValue("Software\\Tarnwick\\Corvane", "PingTest", std::stoi(c[0]), registry::Number);
    EXPECT_EQ(c[2], inspect(c[1]));
  }
}

TEST_F(PaneTest, ShowsStatisticsAsTheServiceLeftThem) {
  for (const auto& c : Cases("logs/Statistics.txt")) {
    SetStatistics("PC2", {{"LastCheck", c[0]}, {"LastScan", c[1]}, {"NumEvents", c[2]}, {"ScanTime", c[3]}});
    EXPECT_EQ(c[4], LinesOf([&](ui::ListBox& lines) { LoadStatistics(Main, "PC2", lines); }));
  }
}

}  // namespace corvane::test
