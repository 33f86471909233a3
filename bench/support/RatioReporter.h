#pragma once

#include <benchmark/benchmark.h>

namespace corvane::bench {

/// What one benchmark found out: a time in seconds or a size in bytes.
struct Finding {
  double Measured = 0;
  /// The bare work that was done beside it, or a fixed limit.
  double Against = 0;
  /// How many times `Against` is still within the budget; 0 where there is no budget.
  double Allowed = 0;
  bool IsSize = false;
};

/// Hands a finding over to the reporter; `against` says in a few words what it was held against.
void Report(benchmark::State& state, const Finding& finding, const char* against);

/// Prints one line per benchmark: the work, what was measured, what it is held against, and the ratio of both.
class RatioReporter : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context& context) override;
  void ReportRuns(const std::vector<Run>& runs) override;
};

}  // namespace corvane::bench
