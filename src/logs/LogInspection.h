#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace corvane {

class modMain;
namespace ui {
class ListBox;
}

/// The two numbers with which the monitoring service begins to scan a log. What they mean depends on how the log is
/// read: classic logs give the number of records and the number of the newest, channels the numbers of the newest and
/// the oldest record. The service takes the rows as they are.
struct RecordCounters {
  std::int32_t First = 0;
  std::int32_t Second = 0;
};

enum class CountersResult { Read, NewerThanConsole };

/// Reads the counters of a log. Computers and logs that cannot be read give zeros. A computer of version 6 or above is
/// refused by a console on an older system, which cannot read its logs. Raises `Overflow`.
CountersResult ReadRecordCounters(modMain& main, const std::string& computer, const std::string& log,
                                  RecordCounters& counters);

/// The text without a leading `\\`, if it is two characters long or more.
std::string StripBackslashes(std::string_view text);

/// Pings a computer and tells its system and the size of a log, line by line, each as soon as it is known.
void InspectComputerAndLog(modMain& main, const std::string& computer, const std::string& log, ui::ListBox& lines);

/// Shows what the monitoring service has left about its last scan of a log.
void LoadStatistics(modMain& main, const std::string& idName, ui::ListBox& lines);

}  // namespace corvane
