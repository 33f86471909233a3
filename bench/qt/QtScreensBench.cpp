#include <benchmark/benchmark.h>

#include "admin/frmCreateTable.h"
#include "admin/frmServiceAccount.h"
#include "alarms/frmAlarmExport.h"
#include "alarms/frmAlarmGroups.h"
#include "alarms/frmAlarmImport.h"
#include "alarms/frmAlarms.h"
#include "core/console/frmBegin.h"
#include "core/console/frmLogView.h"
#include "core/console/frmStartup.h"
#include "domains/frmComputerEnum.h"
#include "domains/frmCustomDomainManager.h"
#include "domains/frmDomainChooser.h"
#include "logs/frmLogEdit.h"
#include "notifications/frmCustomNotifications.h"
#include "notifications/frmNotifications.h"
#include "notifications/frmPriorityBuilder.h"
#include "notifications/frmSyslogDevice.h"
#include "qt/FaceHost.h"
#include "support/BenchConsole.h"
#include "support/BenchInstallation.h"
#include "support/Duel.h"
#include "support/RatioReporter.h"
#include "support/TestTargets.h"

namespace corvane::bench {
namespace {

constexpr double ScreenLimit = 0.030;

// The form with a system behind ODBC that is not asked.
template <class Form>
struct WithTargets : test::TestTargets, Form {
  explicit WithTargets(modMain& main) : Form(main, static_cast<test::TestTargets&>(*this)) {}
};

// A form that makes calls, with a telephone of its own.
struct Phone {
  explicit Phone(modMain& main) : Pager(main, main.Platform.Phones) {}
  cvbTAPI Pager;
};
template <class Form>
struct WithPhone : Phone, Form {
  explicit WithPhone(modMain& main) : Phone(main), Form(main, Pager) {}
};

// From the form's construction to the picture of its window.
template <class Form>
void OpenScreen(benchmark::State& state) {
  const BenchInstallation installation;
  FaceHost host;
  BenchConsole console(installation.Folder(), host);
  console.App.Main();
  bool painted = true;
  const auto open = [&] {
    Form form(console.App.State());
    form.Show();
    painted = painted && !host.Picture(form).isNull();
  };
  Duel duel;
  for (auto _ : state) state.SetIterationTime(duel.Round([&] { return SecondsOf(Clock::Processor, open); }));
  if (!painted) state.SkipWithError("the window was not shown");
  Report(state, {duel.Work(), ScreenLimit, 1}, "limit");
}

// The first opening also loads what all later ones find loaded.
BENCHMARK(OpenScreen<frmLogEdit>)->Name("log editor opened and painted, first time")->Iterations(1)->UseManualTime();
BENCHMARK(OpenScreen<frmBegin>)->Name("notice of the first run opened and painted")->Iterations(50)->UseManualTime();
BENCHMARK(OpenScreen<frmStartup>)->Name("About box opened and painted")->Iterations(50)->UseManualTime();
BENCHMARK(OpenScreen<frmLogEdit>)->Name("log editor opened and painted")->Iterations(50)->UseManualTime();
BENCHMARK(OpenScreen<WithPhone<frmCVMain>>)->Name("main window opened and painted")->Iterations(50)->UseManualTime();
BENCHMARK(OpenScreen<frmDomainChooser>)->Name("default domain opened and painted")->Iterations(50)->UseManualTime();
BENCHMARK(OpenScreen<frmComputerEnum>)->Name("computer names opened and painted")->Iterations(50)->UseManualTime();
BENCHMARK(OpenScreen<frmCustomDomainManager>)
    ->Name("custom domains opened and painted")
    ->Iterations(50)
    ->UseManualTime();
BENCHMARK(OpenScreen<frmServiceAccount>)->Name("service account opened and painted")->Iterations(50)->UseManualTime();
BENCHMARK(OpenScreen<frmAlarms>)->Name("alarms opened and painted")->Iterations(50)->UseManualTime();
BENCHMARK(OpenScreen<frmAlarmGroups>)->Name("alarm bundles opened and painted")->Iterations(50)->UseManualTime();
BENCHMARK(OpenScreen<frmAlarmExport>)->Name("export of alarms opened and painted")->Iterations(50)->UseManualTime();
BENCHMARK(OpenScreen<frmAlarmImport>)->Name("import of alarms opened and painted")->Iterations(50)->UseManualTime();
BENCHMARK(OpenScreen<frmCustomNotifications>)
    ->Name("custom notifications opened and painted")
    ->Iterations(50)
    ->UseManualTime();
BENCHMARK(OpenScreen<frmSyslogDevice>)->Name("syslog device opened and painted")->Iterations(50)->UseManualTime();
BENCHMARK(OpenScreen<frmPriorityBuilder>)->Name("priority builder opened and painted")->Iterations(50)->UseManualTime();
BENCHMARK(OpenScreen<WithTargets<frmNotifications>>)
    ->Name("notifications opened and painted")
    ->Iterations(50)
    ->UseManualTime();
BENCHMARK(OpenScreen<WithTargets<frmCreateTable>>)
    ->Name("table of events opened and painted")
    ->Iterations(50)
    ->UseManualTime();
BENCHMARK(OpenScreen<frmLogView>)->Name("log viewer opened and painted")->Iterations(50)->UseManualTime();

}  // namespace
}  // namespace corvane::bench
