#include "adapters/lab/LabChannelReader.h"
#include "logs/LogEditFixture.h"
#include "logs/LogInspection.h"
#include "platform/EventLogs.h"
#include "platform/RuntimeError.h"
#include "support/ReplacedPorts.h"

namespace corvane::test {
namespace {

// A classic log whose second reading can fail, which the lab's logs never do.
class FailingLogs : public EventLogs {
 public:
  EventLogHandle Open(const std::string& server, const std::string&) override {
    Server = server;
    return 1;
  }
  bool GetOldestRecord(EventLogHandle, std::uint32_t& number) override {
    number = 100;
    return !OldestFails;
  }
  bool GetNumberOfRecords(EventLogHandle, std::uint32_t& count) override {
    count = 50;
    return OldestFails;
  }
  void Close(EventLogHandle) override { ++Closed; }

  bool OldestFails = false;
  int Closed = 0;
  std::string Server;
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
  const char* const cases[][3] = {{"oldest 0, count 0", "0 1", "0 1"},
                                  {"oldest 1, count 50", "50 1", "50 1"},
                                  {"oldest 100, count 50", "50 149", "149 100"},
                                  {"oldest 2147483600, count 47", "47 2147483646", "2147483646 2147483600"}};
  for (const auto& [log, classic, channel] : cases) {
    for (const char* computer : {"MERFILE01", "MERDC01"}) SetLog(computer, log);
    EXPECT_EQ(classic, Read("MERFILE01")) << log;
    EXPECT_EQ(channel, Read("\\\\MERDC01")) << log;
  }
  // The sum itself must fit, before one is taken from it.
  for (const char* computer : {"MERFILE01", "MERDC01"}) {
    SetLog(computer, "oldest 2147483600, count 48");
    EXPECT_THROW(Read(computer), RuntimeError) << computer;
  }
}

TEST_F(CountersTest, WhatCannotBeReadCountsNothing) {
  for (const char* computer : {"MERBACKUP", "NOSUCHPC"}) EXPECT_EQ("0 0", Read(computer));
  FailingLogs logs;
  Platform ports = Replace(Console.Ports, {.EventLogs = &logs});
  modMain main(ports);
  for (const bool oldestFails : {true, false}) {
    logs.OldestFails = oldestFails;
    RecordCounters counters{7, 7};
    EXPECT_EQ(CountersResult::Read, ReadRecordCounters(main, "MERFILE01", "System", counters));
    EXPECT_EQ(0, counters.First + counters.Second);
  }
  EXPECT_EQ(2, logs.Closed);
  EXPECT_EQ("\\\\MERFILE01", logs.Server);
}

// Without a log file the channel's own handle stays open: left so, and watched here for not growing elsewhere.
TEST_F(CountersTest, OneHandleLeaksWhereTheLogFileIsMissing) {
  const auto& reader = dynamic_cast<LabChannelReader&>(*Main.ChannelReader);
  Read("MERDC01");
  EXPECT_EQ(0u, reader.OpenHandles());
  SetLog("MERDC01", "oldest 1, count 5, off");
  EXPECT_EQ("0 0", Read("MERDC01"));
  EXPECT_EQ(1u, reader.OpenHandles());
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
  const auto inspect = [&](const char* computer) {
    return LinesOf([&](ui::ListBox& lines) { InspectComputerAndLog(Main, computer, "System", lines); });
  };
  Console.SetLab("Computer MERFILE01", "Log System", "oldest 3, count 1234");
  const std::string reply = "Ping reply from 192.0.2.14, Response Time=0ms\n", lost = "Request timeout\n";
  EXPECT_EQ("Pinging MERFILE01 3 times with 64 bytes of data...\n" + reply + reply + reply + std::string(100, '-') +
                "\nMERFILE01 is running Microsoft Windows Server 2003\n"
                "The System log on MERFILE01 contains 1234 records.\n",
            inspect("MERFILE01"));
  EXPECT_EQ("Pinging MERBACKUP 3 times with 64 bytes of data...\n" + lost + lost + lost +
                "MERBACKUP did not respond to 3 ping attempts.  The computer may be offline, or ICMP may be "
                "disabled/blocked.\n",
            inspect("MERBACKUP"));
  const std::string unknown = inspect("NOSUCHPC"), refused = inspect("HBRFILE2");
  EXPECT_NE(std::string::npos, unknown.find("Error during ping attempt: ")) << unknown;
  EXPECT_EQ(2, std::count(unknown.begin(), unknown.end(), '\n') - 1) << unknown;
  EXPECT_TRUE(
      refused.ends_with("The operating system running on HBRFILE2 could not be determined.\n"
                        "The number of entries in the System log on HBRFILE2 could not be determined.\n"))
      << refused;
  Main.Registry.SetKeyValue("Software\\Tarnwick\\Corvane", "PingTest", 0, registry::Number);
  EXPECT_EQ("ICMP Echo (Ping) testing is disabled.  Therefore, no computer and log information will be displayed.\n",
            inspect("MERFILE01"));
}

TEST_F(PaneTest, ShowsStatisticsAsTheServiceLeftThem) {
  const char* const cases[][5] = {
      {"11_16_2026_14_5_9", "1_2_2026_0_0_0", "500", "0", "11/16/2026 2:05:09 PM|1/2/2026|500|500.00"},
      {"", "1_2_2026_0_30_0", "1", "3", "|1/2/2026 12:30:00 AM|1|.33"},
      {"1_2", "x", "many", "", "||0|.00"}};
  const auto statistics = [&](const char* lastCheck, const char* lastScan, const char* events, const char* time) {
    SetStatistics("PC2", {{"LastCheck", lastCheck}, {"LastScan", lastScan}, {"NumEvents", events}, {"ScanTime", time}});
    return LinesOf([&](ui::ListBox& lines) { LoadStatistics(Main, "PC2", lines); });
  };
  EXPECT_EQ("No statistics found for this log.\n", statistics("", "", "500", "2"));
  for (const auto& [lastCheck, lastScan, events, time, shown] : cases) {
    std::string expected =
        "The last check of this log occurred at: @\n"
        "The last scan of new entries in this log occurred at: @\n"
        "@ event log entries were examined during the last scan.\nScanning speed: @ events scanned per second.\n";
    std::istringstream parts(shown);
    for (std::string part; std::getline(parts, part, '|');) expected.replace(expected.find('@'), 1, part);
    EXPECT_EQ(expected, statistics(lastCheck, lastScan, events, time));
  }
}

}  // namespace
}  // namespace corvane::test
