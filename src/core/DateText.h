#pragma once

#include <string>

#include "platform/DateTime.h"

namespace corvane {

/// Date and time as the system shows them in general: "11/16/2026 2:05:09 PM", without the time at midnight.
std::string GeneralDate(DateTime time);

/// The time of day alone: "02:05:09 PM".
std::string ClockText(DateTime time);

}  // namespace corvane
