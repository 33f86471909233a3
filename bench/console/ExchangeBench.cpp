#include <benchmark/benchmark.h>

#include "alarms/frmAlarmExport.h"
#include "alarms/frmAlarmImport.h"
#include "support/BareStore.h"
#include "support/BenchAlarms.h"
#include "support/BenchConsole.h"
#include "support/BenchInstallation.h"
#include "support/Duel.h"
#include "support/IdleHost.h"
#include "support/RatioReporter.h"

namespace corvane::bench {
namespace {

constexpr int Alarms = 250;
constexpr double Limit = 0.100;
constexpr std::uintmax_t LongestFile = 30'000;

// Chooses the one file and agrees to everything.
class AgreeingHost : public IdleHost {
 public:
  using UiHost::MsgBox;
  ui::MsgResult MsgBox(const std::string&, ui::MsgIcon, ui::MsgButtons, const std::string&) override {
    return ui::MsgResult::Yes;
  }
  std::optional<std::string> SaveFile(const ui::SaveDialog&) override { return "C:\\Corvane\\alarms.ini"; }
  std::optional<std::string> OpenFile(const ui::OpenDialog&) override { return "C:\\Corvane\\alarms.ini"; }
};

/// A console with a bundle whose alarms just fill a file.
struct ExchangeConsole {
  ExchangeConsole() : App(Installation.Folder(), Host) {
    FillCatalogue(Installation.Database(), Alarms);
    BareStore store(Installation.Database());
    store.Run(
        "UPDATE Alarms SET Description = 'What it means and what is to be done', ThresholdCount = 0, ThresholdTimeout "
        "= 0; DELETE FROM AlarmGroups");
    store.Run("INSERT INTO AlarmGroups VALUES (1, 'Bench'); DELETE FROM AlarmsInGroups");
    store.Run("INSERT INTO AlarmsInGroups SELECT AlarmID, 1 FROM Alarms");
    App.App.Main();
  }

  double Export() {
    frmAlarmExport form(App.App.State());
    form.Load();
    form.cmdBrowse.Click();
    form.lvwAlarmGroups.Select(0);
    form.cmdAdd.Click();
    return SecondsOf(Clock::Wall, form.cmdOK.Click);
  }
  // Without rows in the catalogue these are added, else each is overwritten.
  double Import(bool isEmpty) {
    if (isEmpty) BareStore(Installation.Database()).Run("DELETE FROM Alarms; DELETE FROM AlarmsInGroups");
    frmAlarmImport form(App.App.State());
    form.Load();
    const double listed = SecondsOf(Clock::Wall, form.cmdBrowse.Click);
    return listed + SecondsOf(Clock::Wall, form.cmdImport.Click);
  }
  bool IsWhole() {
    const std::uintmax_t length = std::filesystem::file_size(Installation.Folder() / "alarms.ini");
    return length > LongestFile * 9 / 10 && length <= LongestFile &&
           BareStore(Installation.Database()).Walk("SELECT * FROM Alarms JOIN AlarmsInGroups USING (AlarmID)") ==
               Alarms;
  }

  BenchInstallation Installation;
  AgreeingHost Host;
  BenchConsole App;
};

void Exchange(benchmark::State& state, double (*work)(ExchangeConsole&)) {
  ExchangeConsole console;
  console.Export();
  Duel duel;
  for (auto _ : state) state.SetIterationTime(duel.Round([&] { return work(console); }));
  if (!console.IsWhole()) state.SkipWithError("alarms are missing");
  Report(state, {duel.Work(), Limit, 1}, "limit");
}

BENCHMARK_CAPTURE(Exchange, write, [](ExchangeConsole& console) { return console.Export(); })
    ->Name("full file of 250 alarms exported")
    ->Iterations(20)
    ->UseManualTime();
BENCHMARK_CAPTURE(Exchange, add, [](ExchangeConsole& console) { return console.Import(true); })
    ->Name("full file of 250 alarms imported, all new")
    ->Iterations(20)
    ->UseManualTime();
BENCHMARK_CAPTURE(Exchange, overwrite, [](ExchangeConsole& console) { return console.Import(false); })
    ->Name("full file of 250 alarms imported, all overwritten")
    ->Iterations(20)
    ->UseManualTime();

}  // namespace
}  // namespace corvane::bench
