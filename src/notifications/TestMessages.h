#pragma once

#include <string>

#include "platform/DateTime.h"
#include "platform/System.h"

namespace corvane {

/// True when a host is given by its address: four parts, each a number, parted by dots.
bool IsIPAddressText(const std::string& host);

/// What stands behind the date of a message: the distance of local time from Greenwich as hours and hundredths of an
/// hour, so that half an hour is 50. Empty where there is none.
std::string ZoneText(const TimeZone& zone);

/// A test message with its header (RFC 5322), as it goes out by mail and popup. Lines end with CR LF. With the
/// terminator it ends with the line of a dot that closes a mail.
std::string BuildTestMessage(const std::string& recipient, const std::string& sender, DateTime now,
                             const TimeZone& zone, bool withTerminator);

/// A test message for a syslog server. The long form (RFC 3164) has the time and this computer's name; a priority of 0
/// goes out in the short one.
std::string BuildSyslogMessage(int priority, bool isLong, DateTime now, const std::string& computer);

/// Date and time with fixed separators: `2026-11-16 14:05:09` and `11/16/2026 14:05:09`.
std::string IsoTime(DateTime time);
std::string AmericanTime(DateTime time);

}  // namespace corvane
