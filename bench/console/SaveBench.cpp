#include <benchmark/benchmark.h>

#include "logs/frmLogEdit.h"
#include "support/BareLogs.h"
#include "support/BenchConsole.h"
#include "support/BenchInstallation.h"
#include "support/Duel.h"
#include "support/IdleHost.h"
#include "support/RatioReporter.h"

namespace corvane::bench {
namespace {

constexpr int Rounds = 200;

// What a user would have picked, with the keys that the pickers give.
void Choose(frmLogEdit& editor, const WatchedLog& log, const Attachments& attached) {
  const auto key = [](std::size_t place, const Attachments::Alarm& alarm) {
    return "000" + std::to_string(place) + "_" + alarm.Category;
  };
  editor.lstComputerName.SetText(log.Computer);
  editor.lstLogType.SetListIndex(log.Type - 1);
  for (const auto& bundle : attached.Bundles) editor.tvSelectedAlarms.Add(0, "GROUP_" + bundle, bundle, "");
  for (std::size_t i = 0; i < attached.Alarms.size(); ++i)
    editor.tvSelectedAlarms.Add(0, key(i, attached.Alarms[i]), attached.Alarms[i].Name, "");
  editor.tvSelectedDenyAlarms.Add(0, "GROUP_" + attached.IgnoredBundle, attached.IgnoredBundle, "");
  editor.tvSelectedDenyAlarms.Add(0, key(1, attached.Ignored), attached.Ignored.Name, "");
  for (const auto& name : attached.Notifications) {
    ui::ListItem item;
    item.Text = name;
    editor.lvwActiveNotifications.Add(std::move(item));
  }
}

/// An installation with a started console, and a copy of its database for the bare statements.
class SaveContest {
 public:
  explicit SaveContest(int logs) : installation_(logs, Rounds), bare_(installation_.CopyOfDatabase()) {
    console_.App.Main();
  }

  /// Times OK on the editor, which `prepare` has filled, against the bare statements.
  void Round(benchmark::State& state, bool isNew, const std::function<void(frmLogEdit&)>& prepare,
             const std::function<void()>& bareStatements) {
    double seconds = 0;
    console_.App.State().IsNewLog = isNew;
    host_.OnModal = [&](ui::Form& form) {
      auto& editor = dynamic_cast<frmLogEdit&>(form);
      prepare(editor);
      seconds = SecondsOf(Clock::Wall, editor.cmdOK.Click);
    };
    const auto save = [&] {
      frmLogEdit(console_.App.State()).ShowModal();
      return seconds;
    };
    state.SetIterationTime(duel_.Round(save, [&] { return SecondsOf(Clock::Wall, bareStatements); }));
  }

  void Tell(benchmark::State& state, std::size_t logs) {
    BareStore saved(installation_.Database());
    if (CountAttachments(saved) != logs * AttachmentsPerLog) state.SkipWithError("rows are missing");
    Report(state, {duel_.Work(), duel_.Bare()}, "bare statements");
  }

  BareStore& Bare() { return bare_; }
  frmCVMain& Window() { return console_.Window(); }

 private:
  BenchInstallation installation_;
  BareStore bare_;
  IdleHost host_;
  BenchConsole console_{installation_.Folder(), host_};
  Duel duel_;
};

void InsertLogs(benchmark::State& state) {
  SaveContest contest(0);
  const Attachments attached(contest.Bare());
  int number = 0;
  for (auto _ : state) {
    const WatchedLog log(number++);
    contest.Round(
        state, true, [&](frmLogEdit& editor) { Choose(editor, log, attached); },
        [&] { InsertLog(contest.Bare(), log, attached); });
  }
  contest.Tell(state, Rounds);
}

void EditLog(benchmark::State& state) {
  SaveContest contest(1);
  const Attachments attached(contest.Bare());
  contest.Window().lvwComputers.Select(0);
  for (auto _ : state)
    contest.Round(
        state, false, [&](frmLogEdit& editor) { editor.tmrLoad.Tick(); },
        [&] { ReplaceAttachments(contest.Bare(), WatchedLog(0), attached); });
  contest.Tell(state, 1);
}

BENCHMARK(InsertLogs)->Name("new log with 15 attachments saved")->Iterations(Rounds)->UseManualTime();
BENCHMARK(EditLog)->Name("edited log with 15 attachments saved")->Iterations(Rounds)->UseManualTime();

}  // namespace
}  // namespace corvane::bench
