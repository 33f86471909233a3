#include <benchmark/benchmark.h>

#include "core/console/WatchedLogList.h"
#include "support/BareLogs.h"
#include "support/BenchConsole.h"
#include "support/BenchInstallation.h"
#include "support/Duel.h"
#include "support/IdleHost.h"
#include "support/RatioReporter.h"

namespace corvane::bench {
namespace {

// How many times the walk the fill may take; settled for ten thousand logs.
constexpr double Allowed = 2;
constexpr double NoBudget = 0;

// Every row that the list shows or counts, once, in the order of the list.
std::size_t WalkListedRows(BareStore& store) {
  std::size_t rows = store.Walk(std::string("SELECT * FROM RegisteredServers WHERE [Domain] = '") + Domain +
                                "' ORDER BY ComputerName ASC, LogType ASC");
  for (const char* table : {"AlarmsForLogs", "NotificationsForLogs", "AlarmGroupsForLogs", "AlarmsInGroups"})
    rows += store.Walk(std::string("SELECT * FROM ") + table);
  return rows;
}

bool IsFilled(const ui::ListView& list, int logs) {
  return list.Count() == logs && list.Item(logs - 1).Cell(logcolumn::Notifications) == "3" &&
         !list.Item(logs - 1).Cell(logcolumn::LastCheck).empty();
}

void FillMainList(benchmark::State& state, int logs, double allowed) {
  const BenchInstallation installation(logs);
  IdleHost host;
  BenchConsole console(installation.Folder(), host);
  console.App.Main();
  BareStore store(installation.Database());
  Duel duel;
  for (auto _ : state)
    state.SetIterationTime(
        duel.Round([&] { return SecondsOf(Clock::Processor, [&] { console.Window().RefillLogs(false); }); },
                   [&] { return SecondsOf(Clock::Processor, [&] { WalkListedRows(store); }); }));
  if (!IsFilled(console.Window().lvwComputers, logs)) state.SkipWithError("the list is not whole");
  Report(state, {duel.Work(), duel.Bare(), allowed}, "bare walk");
}

BENCHMARK_CAPTURE(FillMainList, 2, 100, NoBudget)
    ->Name("main list of 100 logs filled")
    ->Iterations(200)
    ->UseManualTime();
BENCHMARK_CAPTURE(FillMainList, 3, 1000, NoBudget)
    ->Name("main list of 1000 logs filled")
    ->Iterations(100)
    ->UseManualTime();
BENCHMARK_CAPTURE(FillMainList, 4, 10'000, Allowed)
    ->Name("main list of 10000 logs filled")
    ->Iterations(60)
    ->UseManualTime();
BENCHMARK_CAPTURE(FillMainList, 5, 100'000, NoBudget)
    ->Name("main list of 100000 logs filled")
    ->Iterations(5)
    ->UseManualTime();

}  // namespace
}  // namespace corvane::bench
