#include <benchmark/benchmark.h>

#include "support/BenchConsole.h"
#include "support/BenchInstallation.h"
#include "support/Duel.h"
#include "support/IdleHost.h"
#include "support/RatioReporter.h"

namespace corvane::bench {
namespace {

constexpr double StartLimit = 0.200;

// The whole start, but for the fixed pauses in which the user reads the splash.
void Start(benchmark::State& state, int logs) {
  const BenchInstallation installation(logs);
  IdleHost host;
  const auto start = [&] { BenchConsole(installation.Folder(), host).App.Main(); };
  Duel duel;
  for (auto _ : state) state.SetIterationTime(duel.Round([&] { return SecondsOf(Clock::Processor, start); }));
  Report(state, {duel.Work(), StartLimit, 1}, "limit");
}

BENCHMARK_CAPTURE(Start, fresh, 0)->Name("start to the main window, no logs")->Iterations(20)->UseManualTime();
BENCHMARK_CAPTURE(Start, thousand, 1000)->Name("start to the main window, 1000 logs")->Iterations(10)->UseManualTime();

}  // namespace
}  // namespace corvane::bench
