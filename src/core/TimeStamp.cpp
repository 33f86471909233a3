#include "core/TimeStamp.h"

#include <array>
#include <limits>

#include "platform/Conversions.h"
#include "platform/RuntimeError.h"

namespace corvane {
namespace {

constexpr int InvalidCall = 5;
constexpr int SubscriptOutOfRange = 9;

enum Part { Month, Day, Year, Hour, Minute, Second, PartCount };

struct Parts {
  std::array<std::string_view, PartCount> Texts;
  std::size_t Count = 0;
};

Parts Split(std::string_view text) {
  Parts parts;
  while (parts.Count < PartCount && !(parts.Count == 0 && text.empty())) {
    const std::size_t end = text.find('_');
    parts.Texts[parts.Count++] = text.substr(0, end);
    if (end == text.npos) break;
    text.remove_prefix(end + 1);
  }
  return parts;
}

int Number(const Parts& parts, Part part) {
  if (part >= static_cast<int>(parts.Count)) throw RuntimeError(SubscriptOutOfRange, "Subscript out of range");
  const std::int32_t number = TextToInt32(parts.Texts[part]);
  using Limits = std::numeric_limits<std::int16_t>;
  if (number < Limits::min() || number > Limits::max()) throw RuntimeError(errors::Overflow, "Overflow");
  return number;
}

// Nothing outside these years is a date. The year is tested by itself first, since the calendar ends not far beyond.
bool IsYear(int year) { return year >= 100 && year <= 9999; }

}  // namespace

std::string TimeStampText(DateTime time) {
  const DateTimeParts parts = PartsOf(time);
  std::string text = std::to_string(parts.Month);
  for (const int part : {parts.Day, parts.Year, parts.Hour, parts.Minute, parts.Second})
    text.append("_").append(std::to_string(part));
  return text;
}

DateTime ParseTimeStamp(std::string_view text) {
  const Parts parts = Split(text);
  const int year = Number(parts, Year);
  const int month = Number(parts, Month);
  const int day = Number(parts, Day);
  const int hour = Number(parts, Hour);
  const int minute = Number(parts, Minute);
  const int second = Number(parts, Second);
  if (IsYear(year)) {
    const DateTime time = MakeDateTime(year, month, day, hour, minute, second);
    if (IsYear(PartsOf(time).Year)) return time;
  }
  throw RuntimeError(InvalidCall, "Invalid procedure call or argument");
}

}  // namespace corvane
