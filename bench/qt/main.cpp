#include <QApplication>
#include <QLoggingCategory>

#include "adapters/qt/look/Look.h"
#include "qt/FaceHost.h"
#include "support/BenchConsole.h"
#include "support/RunBenchmarks.h"

int main(int count, char** arguments) {
  using namespace corvane::bench;
  // Painted into memory, so that no display takes part; the toolkit then remarks on every window that it cannot raise.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QLoggingCategory::setFilterRules("default.warning=false");
  int none = 1;
  const QApplication application(none, arguments);
  corvane::qt::SetUpLook();
  return RunBenchmarks(count, arguments, [](const std::filesystem::path& installation) {
    FaceHost host;
    BenchConsole console(installation, host);
    console.App.Main();
    host.Picture(console.Window());
  });
}
