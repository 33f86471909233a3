#pragma once

#include <string>
#include <string_view>

#include "platform/DateTime.h"

namespace corvane {

/// A date and time as the settings hold it: month, day, year, hour, minute, second in plain decimal, joined by "_",
/// such as `11_16_2026_14_5_9`.
std::string TimeStampText(DateTime time);

/// The date and time of such a text; more parts than six are passed over. Raises 9 for a text with fewer parts, 13 for
/// a part that is no number, 6 for one beyond 16 bits, 5 for a result before the year 100 or after 9999.
DateTime ParseTimeStamp(std::string_view text);

}  // namespace corvane
