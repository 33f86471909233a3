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
    EXPECT_EQ(CountersResult::Read, ReadRecordCounters(console.App.State(), computer, log, counters));
    return std::to_string(counters.First) + " " + std::to_string(counters.Second);
  }
  void SetLog(const std::string& computer, const std::string& value) {
    console.SetLab("Computer " + computer, "Log System", value);
  }
};

// The same log tells other numbers as a classic log than as a channel; the service reads the rows as they are.
TEST_F(CountersTest, ClassicLogsAndChannelsCountDifferently) {
  const struct {
    const char* Log;
    const char* Classic;
    const char* Channel;
  } cases[] = {{"oldest 0, count 0", "0 1", "0 1"},
               {"oldest 1, count 50", "50 1", "50 1"},
               {"oldest 100, count 50", "50 149", "149 100"},
               {"oldest 2147483600, count 47", "47 2147483646", "2147483646 2147483600"}};
  for (const auto& one : cases) {
    SetLog("MERFILE01", one.Log);
    SetLog("MERDC01", one.Log);
    EXPECT_EQ(one.Classic, Read("MERFILE01")) << one.Log;
    EXPECT_EQ(one.Channel, Read("\\\\MERDC01")) << one.Log;
  }
  // The sum itself must fit, before one is taken from it.
  for (const char* computer : {"MERFILE01", "MERDC01"}) {
    SetLog(computer, "oldest 2147483600, count 48");
    EXPECT_THROW(Read(computer), RuntimeError) << computer;
  }
}

TEST_F(CountersTest, WhatCannotBeReadCountsNothing) {
  EXPECT_EQ("0 0", Read("MERBACKUP"));
  EXPECT_EQ("0 0", Read("NOSUCHPC"));
  FailingLogs logs;
  Platform ports = Replace(console.Ports, {.EventLogs = &logs});
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
  const auto& reader = dynamic_cast<LabChannelReader&>(*console.App.State().ChannelReader);
  Read("MERDC01");
  EXPECT_EQ(0u, reader.OpenHandles());
  SetLog("MERDC01", "oldest 1, count 5, off");
  EXPECT_EQ("0 0", Read("MERDC01"));
  EXPECT_EQ(1u, reader.OpenHandles());
}

TEST_F(LogEditTest, ThePaneTellsPingSystemAndRecords) {
  ui::Form form(Host(), "pane");
  ui::ListBox lines(form, "lines");
  const auto inspect = [&](const char* computer) {
    lines.Clear();
    InspectComputerAndLog(console.App.State(), computer, "System", lines);
    return Lines(lines);
  };
  console.SetLab("Computer MERFILE01", "Log System", "oldest 3, count 1234");
  const std::string reply = "Ping reply from 192.0.2.14, Response Time=0ms\n";
  EXPECT_EQ("Pinging MERFILE01 3 times with 64 bytes of data...\n" + reply + reply + reply + std::string(100, '-') +
                "\nMERFILE01 is running Microsoft Windows Server 2003\n"
                "The System log on MERFILE01 contains 1234 records.\n",
            inspect("MERFILE01"));

  EXPECT_EQ(
      "Pinging MERBACKUP 3 times with 64 bytes of data...\nRequest timeout\nRequest timeout\nRequest timeout\n"
      "MERBACKUP did not respond to 3 ping attempts.  The computer may be offline, or ICMP may be disabled/blocked.\n",
      inspect("MERBACKUP"));
  const std::string unknown = inspect("NOSUCHPC");
  EXPECT_NE(std::string::npos, unknown.find("Error during ping attempt: ")) << unknown;
  EXPECT_EQ(2, std::count(unknown.begin(), unknown.end(), '\n') - 1) << unknown;
  const std::string refused = inspect("HBRFILE2");
  EXPECT_NE(std::string::npos,
            refused.find("The operating system running on HBRFILE2 could not be determined.\n"
                         "The number of entries in the System log on HBRFILE2 could not be determined.\n"))
      << refused;

  console.App.State().Registry.SetKeyValue("Software\\Tarnwick\\Corvane", "PingTest", 0, registry::Number);
  EXPECT_EQ("ICMP Echo (Ping) testing is disabled.  Therefore, no computer and log information will be displayed.\n",
            inspect("MERFILE01"));
}

TEST_F(LogEditTest, StatisticsAreShownAsTheServiceLeftThem) {
  ui::Form form(Host(), "pane");
  ui::ListBox lines(form, "lines");
  const std::string check = "The last check of this log occurred at: ";
  const std::string scan = "The last scan of new entries in this log occurred at: ";
  const struct {
    const char *LastCheck, *LastScan, *NumEvents, *ScanTime;
    std::string Shown;
  } cases[] = {{"", "", "500", "2", "No statistics found for this log.\n"},
               {"11_16_2026_14_5_9", "1_2_2026_0_0_0", "500", "0",
                check + "11/16/2026 2:05:09 PM\n" + scan +
                    "1/2/2026\n500 event log entries were examined during the last "
                    "scan.\nScanning speed: 500.00 events scanned per second.\n"},
               {"", "1_2_2026_0_30_0", "1", "3",
                check + "\n" + scan +
                    "1/2/2026 12:30:00 AM\n1 event log entries were examined during the last scan.\n"
                    "Scanning speed: .33 events scanned per second.\n"},
               {"1_2", "x", "many", "",
                check + "\n" + scan +
                    "\n0 event log entries were examined during the last scan.\n"
                    "Scanning speed: .00 events scanned per second.\n"}};
  Reghack& registry = console.App.State().Registry;
  const char* key = "Software\\Tarnwick\\Corvane\\Statistics";
  for (const auto& one : cases) {
    registry.CreateNewKey(key, registry::LocalMachine);
    registry.SetKeyValue(key, "PC2_LastCheck", one.LastCheck, registry::String);
    registry.SetKeyValue(key, "PC2_LastScan", one.LastScan, registry::String);
    registry.SetKeyValue(key, "PC2_NumEvents", one.NumEvents, registry::String);
    registry.SetKeyValue(key, "PC2_ScanTime", one.ScanTime, registry::String);
    LoadStatistics(console.App.State(), "PC2", lines);
    EXPECT_EQ(one.Shown, Lines(lines));
  }
}

}  // namespace
}  // namespace corvane::test
