#include <benchmark/benchmark.h>

#include "alarms/AlarmTree.h"
#include "platform/ui/Form.h"
#include "support/BareStore.h"
#include "support/BenchAlarms.h"
#include "support/BenchConsole.h"
#include "support/BenchInstallation.h"
#include "support/Duel.h"
#include "support/IdleHost.h"
#include "support/RatioReporter.h"

namespace corvane::bench {
namespace {

constexpr int Alarms = 10'000;
// How many times a bare walk over the same rows the tree may take.
constexpr double Allowed = 4;

using Work = void (*)(AlarmTree& tree, ui::NodeId category);

// Each round begins with a tree of its own, whose branches above the category are open.
void UseTree(benchmark::State& state, Work prepare, Work work, int nodes) {
  const BenchInstallation installation;
  FillCatalogue(installation.Database(), Alarms);
  IdleHost host;
  BenchConsole console(installation.Folder(), host);
  console.App.Main();
  BareStore store(installation.Database());
  Duel duel;
  bool isRight = true;
  for (auto _ : state) {
    ui::Form form(host, "frmBench");
    ui::TreeView view(form, "tvAlarms");
    AlarmTree tree(console.App.State(), view);
    tree.FillOSNodes();
    for (const char* key : {"OS\\2", "LOGTYPE\\2\\2"}) tree.Expand(view.Find(key));
    const ui::NodeId category = view.Find(BigCategory);
    if (prepare) prepare(tree, category);
    state.SetIterationTime(duel.Round(
        [&] { return SecondsOf(Clock::Processor, [&] { work(tree, category); }); },
        [&] { return SecondsOf(Clock::Processor, [&] { store.Walk("SELECT * FROM Alarms ORDER BY Name"); }); }));
    isRight = isRight && view.Count() >= nodes;
  }
  if (!isRight) state.SkipWithError("the tree is not whole");
  Report(state, {duel.Work(), duel.Bare(), Allowed}, "bare walk");
}

void Expand(AlarmTree& tree, ui::NodeId category) { tree.Expand(category); }
void Collapse(AlarmTree& tree, ui::NodeId category) { tree.Collapse(category); }
void FillWhole(AlarmTree& tree, ui::NodeId) { tree.FillWhole(); }

BENCHMARK_CAPTURE(UseTree, expand, nullptr, Expand, Alarms)
    ->Name("category of 10000 alarms opened")
    ->Iterations(20)
    ->UseManualTime();
BENCHMARK_CAPTURE(UseTree, collapse, Expand, Collapse, 1)
    ->Name("category of 10000 alarms closed")
    ->Iterations(20)
    ->UseManualTime();
BENCHMARK_CAPTURE(UseTree, whole, nullptr, FillWhole, Alarms)
    ->Name("catalogue of 10000 alarms filled whole")
    ->Iterations(20)
    ->UseManualTime();

}  // namespace
}  // namespace corvane::bench
