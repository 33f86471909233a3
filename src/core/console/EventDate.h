#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/DateTime.h"

namespace corvane {

/// The time of an event as its reader gives it, in the columns of `Mon Nov 16 14:05:09 2026`. Nothing for a text that
/// cannot be read so; a day or an hour out of range runs over into the next one.
std::optional<DateTime> EventDate(std::string_view text);

/// A time for display in numbers: "11/16/2026 14:05:09".
std::string EventDateText(DateTime time);

/// The reader's text of a time in the form for display; empty when it cannot be read.
std::string FixDate(std::string_view text);

}  // namespace corvane
