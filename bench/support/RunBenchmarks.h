#pragma once

#include <filesystem>
#include <functional>

namespace corvane::bench {

/// The whole of a program of the bench: its registered benchmarks with the usual options of Google Benchmark, or, with
/// `PeakMemoryOption` and an installation, `listLogs` followed by the peak memory. Gives the exit code.
int RunBenchmarks(int count, char** arguments, const std::function<void(const std::filesystem::path&)>& listLogs);

}  // namespace corvane::bench
