#include <benchmark/benchmark.h>

#include "qt/FaceHost.h"
#include "support/BenchConsole.h"
#include "support/BenchInstallation.h"
#include "support/Duel.h"
#include "support/PeakMemory.h"
#include "support/RatioReporter.h"

namespace corvane::bench {
namespace {

constexpr double Limit = 2.0;

// From the database to the picture of the main window: rows read, flushed into the view and painted.
void PaintMainList(benchmark::State& state, int logs) {
  const BenchInstallation installation(logs);
  FaceHost host;
  BenchConsole console(installation.Folder(), host);
  console.App.Main();
  Duel duel;
  const auto paint = [&] {
    console.Window().RefillLogs(false);
    host.Picture(console.Window());
  };
  for (auto _ : state) state.SetIterationTime(duel.Round([&] { return SecondsOf(Clock::Processor, paint); }));
  if (console.Window().lvwComputers.Count() != logs) state.SkipWithError("the list is not whole");
  Report(state, {duel.Work(), Limit, 1}, "limit of 100000");
}

BENCHMARK_CAPTURE(PaintMainList, 3, 1000)->Name("main list of 1000 logs painted")->Iterations(50)->UseManualTime();
BENCHMARK_CAPTURE(PaintMainList, 4, 10'000)->Name("main list of 10000 logs painted")->Iterations(20)->UseManualTime();
BENCHMARK_CAPTURE(PaintMainList, 5, 100'000)->Name("main list of 100000 logs painted")->Iterations(5)->UseManualTime();
BENCHMARK_CAPTURE(MeasurePeakMemory, some, 10'000, 1)->Name("peak memory, 10000 logs painted")->Iterations(1);
BENCHMARK_CAPTURE(MeasurePeakMemory, many, 100'000, 0)->Name("peak memory, 100000 logs painted")->Iterations(1);

}  // namespace
}  // namespace corvane::bench
