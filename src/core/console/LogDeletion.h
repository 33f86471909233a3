#pragma once

#include <string>
#include <vector>

namespace corvane {

class modMain;

/// A selected row of the list of logs: the computer, and the name of the log, which is empty for one that is not known.
struct DoomedLog {
  std::string Computer;
  std::string Log;
};

/// Asks, and stops watching the logs of a domain. While the monitoring service runs a log is only marked, and the
/// service removes it; otherwise its row is deleted. What is attached goes at once. Failures are passed over; rows that
/// stay locked are told of in one box at the end. Logs that are not known are passed over.
void DeleteWatchedLogs(modMain& main, const std::vector<DoomedLog>& logs, const std::string& domain);

}  // namespace corvane
