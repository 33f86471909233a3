#include "core/DateText.h"

#include "platform/Conversions.h"

namespace corvane {
namespace {

int HourOfHalfDay(int hour) { return hour % 12 == 0 ? 12 : hour % 12; }

std::string MinutesAndHalf(const DateTimeParts& parts) {
  return ":" + PadZero(parts.Minute, 2) + ":" + PadZero(parts.Second, 2) + (parts.Hour < 12 ? " AM" : " PM");
}

}  // namespace

std::string GeneralDate(DateTime time) {
  const DateTimeParts parts = PartsOf(time);
  const std::string date =
      std::to_string(parts.Month) + "/" + std::to_string(parts.Day) + "/" + std::to_string(parts.Year);
  if (parts.Hour == 0 && parts.Minute == 0 && parts.Second == 0) return date;
  return date + " " + std::to_string(HourOfHalfDay(parts.Hour)) + MinutesAndHalf(parts);
}

std::string ClockText(DateTime time) {
  const DateTimeParts parts = PartsOf(time);
  return PadZero(HourOfHalfDay(parts.Hour), 2) + MinutesAndHalf(parts);
}

}  // namespace corvane
