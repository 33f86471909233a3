#include "core/DateText.h"

namespace corvane {
namespace {

int HourOfHalfDay(int hour) { return hour % 12 == 0 ? 12 : hour % 12; }

// Puts a number below 100 in place of two zeros.
void PutPair(std::string& text, std::size_t at, int number) {
  text[at] = static_cast<char>('0' + number / 10);
  text[at + 1] = static_cast<char>('0' + number % 10);
}

}  // namespace

std::string GeneralDate(DateTime time) {
  const DateTimeParts parts = PartsOf(time);
  const std::string date =
      std::to_string(parts.Month) + "/" + std::to_string(parts.Day) + "/" + std::to_string(parts.Year);
  if (parts.Hour == 0 && parts.Minute == 0 && parts.Second == 0) return date;
  return date + " " + std::to_string(HourOfHalfDay(parts.Hour)) + ClockText(time).substr(2);
}

std::string ClockText(DateTime time) {
  const DateTimeParts parts = PartsOf(time);
  std::string clock = parts.Hour < 12 ? "00:00:00 AM" : "00:00:00 PM";
  PutPair(clock, 0, HourOfHalfDay(parts.Hour));
  PutPair(clock, 3, parts.Minute);
  PutPair(clock, 6, parts.Second);
  return clock;
}

}  // namespace corvane
