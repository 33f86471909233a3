#include <benchmark/benchmark.h>
#include <malloc.h>

#include <algorithm>

#include "app/installation/Installation.h"
#include "core/console/frmLogView.h"
#include "support/BenchConsole.h"
#include "support/BenchInstallation.h"
#include "support/Duel.h"
#include "support/IdleHost.h"
#include "support/RatioReporter.h"
#include "support/ServiceLog.h"

namespace corvane::bench {
namespace {

constexpr int Million = 1'000'000;
constexpr double Limit = 2;
constexpr double NoBudget = 0;
// Ten times the log may not need more than this much memory for the same matches.
constexpr double MemoryAllowed = 1.1;

std::size_t HeapInUse() {
  const struct mallinfo2 heap = ::mallinfo2();
  return heap.uordblks + heap.hblkhd;
}

// Sees how much memory is in use while a form works.
class HeapWatch : public IdleHost {
 public:
  void DoEvents() override { Peak = std::max(Peak, HeapInUse()); }
  std::size_t Peak = 0;
};

// A console whose computer has a log of so many records.
struct LoggedConsole {
  LoggedConsole(int records, int every) : App(Installation.Folder(), Host) {
    App.App.Main();
    WriteServiceLog(Log, records, every);
  }

  BenchInstallation Installation;
  std::filesystem::path Log = Installation.Folder() / corvane::Installation::EventLogFolder / "Application.log";
  HeapWatch Host;
  BenchConsole App;
};

// What the viewer does 250 ms after it was opened.
void ReadLog(frmLogView& viewer) {
  viewer.Load();
  viewer.tmrInitialLoad.Tick();
}

// The most memory that the viewer takes up until its list is filled, in bytes.
double MemoryOfViewer(int records, int every) {
  LoggedConsole console(records, every);
  const std::size_t before = console.Host.Peak = HeapInUse();
  frmLogView viewer(console.App.App.State());
  ReadLog(viewer);
  console.Host.DoEvents();
  return static_cast<double>(console.Host.Peak - before);
}

void ReadServiceLog(benchmark::State& state, int every, bool againstLines) {
  LoggedConsole console(Million, every);
  Duel duel;
  bool whole = true;
  for (auto _ : state)
    state.SetIterationTime(duel.Round(
        [&] {
          frmLogView viewer(console.App.App.State());
          const double seconds = SecondsOf(Clock::Processor, [&] { ReadLog(viewer); });
          whole = whole && viewer.lvEvents.Count() == Million / every;
          return seconds;
        },
        [&] { return SecondsOf(Clock::Processor, [&] { benchmark::DoNotOptimize(CountLines(console.Log)); }); }));
  if (!whole) state.SkipWithError("the list is not whole");
  if (againstLines)
    Report(state, {duel.Work(), duel.Bare(), NoBudget}, "bare count of lines");
  else
    Report(state, {duel.Work(), Limit, 1}, "limit");
}

// The same matches in a log of ten times the length.
void MeasureViewerMemory(benchmark::State& state) {
  constexpr int matches = 10'000;
  double small = 0, large = 0;
  for (auto _ : state) {
    small = MemoryOfViewer(Million / 10, Million / 10 / matches);
    large = MemoryOfViewer(Million, Million / matches);
  }
  Report(state, {large, small, MemoryAllowed, true}, "with 100000 records");
}

BENCHMARK_CAPTURE(ReadServiceLog, some, 100, false)
    ->Name("log viewer, 10000 of 1000000 records shown")
    ->Iterations(5)
    ->UseManualTime();
BENCHMARK_CAPTURE(ReadServiceLog, bare, 100, true)
    ->Name("log viewer, 10000 of 1000000 records, beside its lines")
    ->Iterations(5)
    ->UseManualTime();
BENCHMARK_CAPTURE(ReadServiceLog, all, 1, false)
    ->Name("log viewer, all of 1000000 records shown")
    ->Iterations(3)
    ->UseManualTime();
BENCHMARK(MeasureViewerMemory)->Name("memory of the log viewer, 10000 of 1000000 shown")->Iterations(1);

}  // namespace
}  // namespace corvane::bench
