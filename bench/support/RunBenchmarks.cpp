#include "support/RunBenchmarks.h"

#include <string_view>

#include "support/PeakMemory.h"
#include "support/RatioReporter.h"

namespace corvane::bench {

int RunBenchmarks(int count, char** arguments, const std::function<void(const std::filesystem::path&)>& listLogs) {
  if (count == 3 && std::string_view(arguments[1]) == PeakMemoryOption) {
    listLogs(arguments[2]);
    PrintPeakMemory();
    return 0;
  }
  benchmark::Initialize(&count, arguments);
  if (benchmark::ReportUnrecognizedArguments(count, arguments)) return 1;
  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  return 0;
}

}  // namespace corvane::bench
