#include <benchmark/benchmark.h>

#include "logs/frmLogEdit.h"
#include "support/BenchConsole.h"
#include "support/BenchInstallation.h"
#include "support/Duel.h"
#include "support/IdleHost.h"
#include "support/RatioReporter.h"

namespace corvane::bench {
namespace {

constexpr int Computers = 300;
constexpr double ScreenLimit = 0.030;

void OpenLogEditor(benchmark::State& state) {
  const BenchInstallation installation(0, Computers);
  IdleHost host;
  BenchConsole console(installation.Folder(), host);
  console.App.Main();
  int listed = 0;
  host.OnModal = [&](ui::Form& form) {
    auto& editor = dynamic_cast<frmLogEdit&>(form);
    editor.tmrLoad.Tick();
    listed = editor.lstComputerName.Count();
  };
  console.App.State().IsNewLog = true;
  const auto open = [&] { frmLogEdit(console.App.State()).ShowModal(); };
  Duel duel;
  for (auto _ : state) state.SetIterationTime(duel.Round([&] { return SecondsOf(Clock::Processor, open); }));
  if (listed < Computers) state.SkipWithError("computers are missing");
  Report(state, {duel.Work(), ScreenLimit, 1}, "limit of any screen");
}

BENCHMARK(OpenLogEditor)->Name("log editor opened, 300 computers")->Iterations(100)->UseManualTime();

}  // namespace
}  // namespace corvane::bench
