#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace corvane {

/// What anybody may have written into a journal, made a text: what is not well-formed UTF-8, and zero characters,
/// become replacement characters, and lines are parted by CR LF, whichever way they were.
std::string TextOfJournal(std::string_view bytes);

/// The type of event that stands for a syslog severity (RFC 5424): "0" to "3" an error, "4" a warning, all else
/// information.
std::string EventTypeOf(std::string_view severity);

/// Local time in the columns of `EventRecord::Time`, from microseconds since 1970 UTC. `tzset` must have run.
std::string EventTimeOf(std::uint64_t microseconds);

}  // namespace corvane
