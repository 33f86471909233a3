#include "logs/LogInspection.h"

#include <cmath>
#include <cstdio>

#include "core/DateText.h"
#include "core/PassOver.h"
#include "core/Settings.h"
#include "core/TimeStamp.h"
#include "core/modMain.h"
#include "platform/Conversions.h"
#include "platform/EventLogs.h"
#include "platform/Ping.h"
#include "platform/ui/ListControls.h"
#include "platform/ui/UiHost.h"

namespace corvane {
namespace {

constexpr int Attempts = 3;

std::string ServerName(const std::string& computer) {
  return computer.starts_with("\\\\") ? computer : "\\\\" + computer;
}

// False when the request itself failed: further attempts would fail alike.
bool PingOnce(modMain& main, const std::string& computer, ui::ListBox& lines, int& replies) {
  try {
    const PingReply reply = main.Platform.Ping.Send(computer);
    if (reply.Address.empty()) {
      lines.AddItem("Request timeout");
    } else {
      ++replies;
      lines.AddItem("Ping reply from " + reply.Address + ", Response Time=" + std::to_string(reply.Milliseconds) +
                    "ms");
    }
    return true;
  } catch (const RuntimeError& error) {
    lines.AddItem("Error during ping attempt: " + error.Description);
    return false;
  }
}

bool Answers(modMain& main, const std::string& computer, ui::ListBox& lines) {
  lines.AddItem("Pinging " + computer + " 3 times with 64 bytes of data...");
  main.Ui.DoEvents();
  int replies = 0;
  for (int i = 0; i < Attempts && PingOnce(main, computer, lines, replies); ++i) main.Ui.DoEvents();
  if (replies == 0)
    lines.AddItem(
        computer +
        " did not respond to 3 ping attempts.  The computer may be offline, or ICMP may be disabled/blocked.");
  return replies > 0;
}

void TellSystem(modMain& main, const std::string& computer, ui::ListBox& lines) {
  const RegistryHandle remote = main.Registry.OpenRemoteReg(computer, registry::LocalMachine);
  if (remote == 0) {
    lines.AddItem("The operating system running on " + computer + " could not be determined.");
    return;
  }
  const std::string product = main.Registry.DeNullString(
      main.Registry.GetRemoteKeyValue("Software\\Microsoft\\Windows NT\\CurrentVersion", "ProductName", remote));
  lines.AddItem(computer + " is running " + product);
  main.Registry.CloseKeyHandle(remote);
}

// The classic calls serve every computer here, also one whose logs are channels.
void TellRecords(modMain& main, const std::string& computer, const std::string& log, ui::ListBox& lines) {
  EventLogs& logs = main.Platform.EventLogs;
  const EventLogHandle opened = logs.Open(ServerName(computer), log);
  std::uint32_t count = 0;
  const bool read = opened != 0 && logs.GetNumberOfRecords(opened, count);
  if (read)
    lines.AddItem("The " + log + " log on " + computer + " contains " + std::to_string(count) + " records.");
  else
    lines.AddItem("The number of entries in the " + log + " log on " + computer + " could not be determined.");
  if (opened != 0) logs.Close(opened);
}

std::string Statistic(modMain& main, const std::string& idName, const char* suffix) {
  return main.Registry.DeNullString(main.Registry.GetKeyValue(StatisticsKey, idName + suffix));
}

int NumberOrZero(const std::string& text) {
  int number = 0;
  PassOver([&] { number = TextToInt32(text); });
  return number;
}

std::string DateOrNothing(const std::string& stamp) {
  std::string date;
  PassOver([&] { date = GeneralDate(ParseTimeStamp(stamp)); });
  return date;
}

// Two decimals, and no zero in front of the point.
std::string SpeedText(double speed) {
  char text[64];
  std::snprintf(text, sizeof text, "%.2f", std::round(speed * 100) / 100);
  std::string_view shown(text);
  if (shown.starts_with("0.")) shown.remove_prefix(1);
  return std::string(shown);
}

}  // namespace

void InspectComputerAndLog(modMain& main, const std::string& computer, const std::string& log, ui::ListBox& lines) {
  if (main.SettingNumber("PingTest") == 0) {
    lines.AddItem(
        "ICMP Echo (Ping) testing is disabled.  Therefore, no computer and log information will be displayed.");
    return;
  }
  if (!Answers(main, computer, lines)) return;
  lines.AddItem(std::string(100, '-'));
  TellSystem(main, computer, lines);
  TellRecords(main, computer, log, lines);
}

void LoadStatistics(modMain& main, const std::string& idName, ui::ListBox& lines) {
  lines.Clear();
  const std::string lastScan = Statistic(main, idName, "_LastScan");
  const std::string lastCheck = Statistic(main, idName, "_LastCheck");
  if (lastScan.empty() && lastCheck.empty()) {
    lines.AddItem("No statistics found for this log.");
    return;
  }
  lines.AddItem("The last check of this log occurred at: " + DateOrNothing(lastCheck));
  lines.AddItem("The last scan of new entries in this log occurred at: " + DateOrNothing(lastScan));
  const int events = NumberOrZero(Statistic(main, idName, "_NumEvents"));
  int seconds = NumberOrZero(Statistic(main, idName, "_ScanTime"));
  lines.AddItem(std::to_string(events) + " event log entries were examined during the last scan.");
  if (seconds == 0) seconds = 1;
  lines.AddItem("Scanning speed: " + SpeedText(static_cast<double>(events) / seconds) + " events scanned per second.");
}

}  // namespace corvane
