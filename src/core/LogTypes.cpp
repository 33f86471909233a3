#include "core/LogTypes.h"

#include <algorithm>

namespace corvane {

const std::array<std::string, 6> LogTypeNames{
    "Application", "System", "Security", "DNS Server", "Directory Service", "File Replication Service"};

int LogNumber(std::string_view name) {
  const auto found = std::find(LogTypeNames.begin(), LogTypeNames.end(), name);
  return found == LogTypeNames.end() ? 0 : static_cast<int>(found - LogTypeNames.begin()) + 1;
}

const std::string& LogName(int number) {
  static const std::string none;
  return number >= 1 && number <= 6 ? LogTypeNames[static_cast<std::size_t>(number - 1)] : none;
}

std::string ConvNumToLogType(int number) { return number == 5 ? "Directory Server" : LogName(number); }

std::string MakeIDName(std::string_view computer, int logNumber) {
  return std::string(computer) + std::to_string(logNumber);
}

}  // namespace corvane
