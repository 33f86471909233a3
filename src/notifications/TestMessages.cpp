#include "notifications/TestMessages.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "platform/Conversions.h"
#include "platform/SplitText.h"

namespace corvane {
namespace {

constexpr std::array<const char*, 12> Months{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                             "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
constexpr const char* LineBreak = "\r\n";

const char* MonthOf(const DateTimeParts& parts) { return Months.at(static_cast<std::size_t>(parts.Month - 1)); }

std::string Clock(const DateTimeParts& parts) {
  return PadZero(parts.Hour, 2) + ":" + PadZero(parts.Minute, 2) + ":" + PadZero(parts.Second, 2);
}

// Minutes to the west of Greenwich.
int OffsetOf(const TimeZone& zone) {
  int offset = zone.Bias;
  if (zone.Now == TimeZone::Season::Standard && zone.StandardMonth != 0) offset += zone.StandardBias;
  if (zone.Now == TimeZone::Season::Daylight && zone.DaylightMonth != 0) offset += zone.DaylightBias;
  return offset;
}

}  // namespace

bool IsIPAddressText(const std::string& host) {
  const std::vector<std::string> parts = SplitText(host, '.');
  return parts.size() == 4 && std::all_of(parts.begin(), parts.end(), IsNumeric);
}

// No sign stands before a zone to the east.
std::string ZoneText(const TimeZone& zone) {
  const int offset = OffsetOf(zone);
  if (offset == 0) return {};
  const int hundredths = RoundToInt32(offset / 60.0 * -100);
  return (hundredths < 0 ? "-" : "") + PadZero(std::abs(hundredths), 4);
}

std::string BuildTestMessage(const std::string& recipient, const std::string& sender, DateTime now,
                             const TimeZone& zone, bool withTerminator) {
  const DateTimeParts parts = PartsOf(now);
  const std::string zoneText = ZoneText(zone);
  std::string message = "Date: " + PadZero(parts.Day, 2) + " " + MonthOf(parts) + " " + PadZero(parts.Year, 4) + " " +
                        Clock(parts) + (zoneText.empty() ? "" : " " + zoneText) + LineBreak;
  message += "To: " + recipient + LineBreak;
  message += "From: Corvane Notification Engine <" + sender + ">" + LineBreak;
  message += std::string("Subject: Alarm (Notification Test) tripped.  Details follow.") + LineBreak + LineBreak;
  message += std::string("If this was a real notification, event details would follow...") + LineBreak;
  if (withTerminator) message += std::string(LineBreak) + "." + LineBreak;
  return message;
}

std::string BuildSyslogMessage(int priority, bool isLong, DateTime now, const std::string& computer) {
  const std::string text = "Corvane Syslog Notification Test Message:";
  const std::string head = "<" + std::to_string(priority) + ">";
  if (!isLong || priority == 0) return head + " " + text;
  const DateTimeParts parts = PartsOf(now);
  const std::string day = (parts.Day < 10 ? " " : "") + std::to_string(parts.Day);
  const std::size_t name = computer.find_first_not_of('\\');
  const std::string host = name == computer.npos ? "" : Trim(computer.substr(name));
  return head + MonthOf(parts) + " " + day + " " + Clock(parts) + " " + (host.empty() ? "CORVANE" : host) + " " + text;
}

std::string IsoTime(DateTime time) {
  const DateTimeParts parts = PartsOf(time);
  return PadZero(parts.Year, 4) + "-" + PadZero(parts.Month, 2) + "-" + PadZero(parts.Day, 2) + " " + Clock(parts);
}

std::string AmericanTime(DateTime time) {
  const DateTimeParts parts = PartsOf(time);
  return PadZero(parts.Month, 2) + "/" + PadZero(parts.Day, 2) + "/" + PadZero(parts.Year, 4) + " " + Clock(parts);
}

}  // namespace corvane
