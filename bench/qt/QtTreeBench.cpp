#include <benchmark/benchmark.h>

#include "alarms/frmAlarms.h"
#include "qt/FaceHost.h"
#include "support/BenchAlarms.h"
#include "support/BenchConsole.h"
#include "support/BenchInstallation.h"
#include "support/Duel.h"
#include "support/RatioReporter.h"

namespace corvane::bench {
namespace {

constexpr int Alarms = 10'000;
// What a user takes for at once.
constexpr double Limit = 0.1;

// From the click on the expander to the picture of the screen.
void TurnBranch(benchmark::State& state, bool opens) {
  const BenchInstallation installation;
  FillCatalogue(installation.Database(), Alarms);
  FaceHost host;
  BenchConsole console(installation.Folder(), host);
  console.App.Main();
  frmAlarms form(console.App.State());
  form.Show();
  const auto turn = [&](ui::NodeId node, bool open) {
    form.tvAlarms.SetExpanded(node, open);
    (open ? form.tvAlarms.Expand : form.tvAlarms.Collapse)(node);
    host.Picture(form);
  };
  for (const char* key : {"OS\\2", "LOGTYPE\\2\\2"}) turn(form.tvAlarms.Find(key), true);
  const ui::NodeId category = form.tvAlarms.Find(BigCategory);
  Duel duel;
  for (auto _ : state) {
    turn(category, !opens);
    state.SetIterationTime(duel.Round([&] { return SecondsOf(Clock::Processor, [&] { turn(category, opens); }); }));
  }
  if ((form.tvAlarms.Count() > Alarms) != opens) state.SkipWithError("the branch is not whole");
  Report(state, {duel.Work(), Limit, 1}, "limit");
}

BENCHMARK_CAPTURE(TurnBranch, open, true)
    ->Name("category of 10000 alarms opened and painted")
    ->Iterations(10)
    ->UseManualTime();
BENCHMARK_CAPTURE(TurnBranch, close, false)
    ->Name("category of 10000 alarms closed and painted")
    ->Iterations(10)
    ->UseManualTime();

}  // namespace
}  // namespace corvane::bench
