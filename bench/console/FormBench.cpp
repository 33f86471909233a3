#include <benchmark/benchmark.h>

#include "core/console/frmBegin.h"
#include "core/console/frmStartup.h"
#include "support/BenchConsole.h"
#include "support/BenchInstallation.h"
#include "support/Duel.h"
#include "support/IdleHost.h"
#include "support/RatioReporter.h"

namespace corvane::bench {
namespace {

constexpr int FormsPerRound = 1000;
constexpr double FormsPerSecond = 100'000;

// Construct, load, show, unload: the host unloads it at once.
template <class Form>
void RunForms(benchmark::State& state) {
  const BenchInstallation installation;
  IdleHost host;
  BenchConsole console(installation.Folder(), host);
  std::size_t controls = 0;
  Duel duel;
  const auto open = [&] {
    for (int i = 0; i < FormsPerRound; ++i) {
      Form form(console.App.State());
      form.ShowModal();
      controls += form.IsUnloaded() ? form.Controls().size() : 0;
    }
  };
  for (auto _ : state) state.SetIterationTime(duel.Round([&] { return SecondsOf(Clock::Processor, open); }));
  if (controls == 0) state.SkipWithError("no form was shown");
  Report(state, {duel.Work() / FormsPerRound, 1 / FormsPerSecond, 1}, "limit");
}

BENCHMARK(RunForms<frmBegin>)->Name("notice of the first run, from new to gone")->Iterations(200)->UseManualTime();
BENCHMARK(RunForms<frmStartup>)->Name("About box, from new to gone")->Iterations(200)->UseManualTime();

}  // namespace
}  // namespace corvane::bench
