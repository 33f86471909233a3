#pragma once

#include <chrono>

namespace corvane {

/// Local wall-clock time in whole seconds, without a zone.
using DateTime = std::chrono::local_seconds;

/// A `DateTime` taken apart. `Month` and `Day` count from 1.
struct DateTimeParts {
  int Year = 0, Month = 0, Day = 0, Hour = 0, Minute = 0, Second = 0;
};

/// Takes a date-time apart.
inline DateTimeParts PartsOf(DateTime time) {
  const auto day = std::chrono::floor<std::chrono::days>(time);
  const std::chrono::year_month_day date{day};
  const std::chrono::hh_mm_ss clock{time - day};
  return {static_cast<int>(date.year()),
          static_cast<int>(static_cast<unsigned>(date.month())),
          static_cast<int>(static_cast<unsigned>(date.day())),
          static_cast<int>(clock.hours().count()),
          static_cast<int>(clock.minutes().count()),
          static_cast<int>(clock.seconds().count())};
}

/// Builds a date-time. A month or day out of range runs over into the next or former one, as calendars do.
inline DateTime MakeDateTime(int year, int month, int day, int hour = 0, int minute = 0, int second = 0) {
  using namespace std::chrono;
  const year_month first = std::chrono::year{year} / January + months{month - 1};
  return local_days{first / 1} + days{day - 1} + hours{hour} + minutes{minute} + seconds{second};
}

}  // namespace corvane
