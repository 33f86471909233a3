#pragma once

#include <array>
#include <string>
#include <string_view>

namespace corvane {

/// Names of the log types 1 to 6, as lists show them and the event-log calls take them.
extern const std::array<std::string, 6> LogTypeNames;

/// The number of a log's name, 1 to 6; 0 for any other text. Case matters.
int LogNumber(std::string_view name);

/// The name of a log number; empty outside 1 to 6.
const std::string& LogName(int number);

/// The same with one word of its own, for the members of bundles: it has always said "Directory Server" for 5.
std::string ConvNumToLogType(int number);

/// The key of a watched log: the computer as it was entered, directly followed by the log number.
std::string MakeIDName(std::string_view computer, int logNumber);

}  // namespace corvane
