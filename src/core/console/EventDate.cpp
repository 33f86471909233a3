#include "core/console/EventDate.h"

#include <charconv>

#include "platform/Conversions.h"

namespace corvane {
namespace {

constexpr std::string_view Months = "JANFEBMARAPRMAYJUNJULAUGSEPOCTNOVDEC";
constexpr std::size_t LetterCount = 3;
constexpr std::size_t TextLength = 24;

// The month from 1, or 0 for letters that name none.
int MonthOf(std::string_view letters) {
  const std::size_t place = Months.find(UpperCase(letters));
  return place == Months.npos || place % LetterCount != 0 ? 0 : static_cast<int>(place / LetterCount) + 1;
}

// Reads digits, behind a blank where there is only one; -1 for anything else.
int NumberOf(std::string_view column) {
  if (column.front() == ' ') column.remove_prefix(1);
  int number = -1;
  const char* end = column.data() + column.size();
  return std::from_chars(column.data(), end, number).ptr == end ? number : -1;
}

}  // namespace

std::optional<DateTime> EventDate(std::string_view text) {
  if (text.size() < TextLength) return std::nullopt;
  const int month = MonthOf(text.substr(4, LetterCount)), day = NumberOf(text.substr(8, 2));
  const int hour = NumberOf(text.substr(11, 2)), minute = NumberOf(text.substr(14, 2));
  const int second = NumberOf(text.substr(17, 2)), year = NumberOf(text.substr(20, 4));
  if (month < 1 || day < 0 || hour < 0 || minute < 0 || second < 0 || year < 0) return std::nullopt;
  return MakeDateTime(year, month, day, hour, minute, second);
}

std::string EventDateText(DateTime time) {
  const DateTimeParts parts = PartsOf(time);
  return std::to_string(parts.Month) + "/" + std::to_string(parts.Day) + "/" + PadZero(parts.Year, 4) + " " +
         PadZero(parts.Hour, 2) + ":" + PadZero(parts.Minute, 2) + ":" + PadZero(parts.Second, 2);
}

std::string FixDate(std::string_view text) {
  const std::optional<DateTime> time = EventDate(text);
  return time ? EventDateText(*time) : "";
}

}  // namespace corvane
