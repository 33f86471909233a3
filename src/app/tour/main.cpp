#include <QApplication>
#include <cstdio>
#include <filesystem>

#include "adapters/qt/QtHost.h"
#include "adapters/qt/look/Look.h"
#include "app/assembly/InstalledPlatform.h"
#include "app/assembly/RunConsole.h"
#include "app/installation/Installation.h"
#include "app/tour/MainJob.h"
#include "app/tour/Script.h"
#include "platform/RuntimeError.h"

// Drives the real window of an installation through the main job and leaves pictures of each step.
int main(int count, char** arguments) {
  QApplication application(count, arguments);
  if (count != 3) {
    std::fprintf(stderr, "usage: corvane-tour INSTALLATION PICTURES\n");
    return 2;
  }
  const std::filesystem::path folder = arguments[1];
  std::filesystem::create_directories(arguments[2]);
  corvane::qt::SetUpLook(corvane::qt::Scheme::Light);
  corvane::qt::QtHost host(corvane::qt::FormRegistry::Console(), (folder / corvane::Installation::HelpFolder).string());
  corvane::tour::Script script(arguments[2]);
  corvane::tour::AddMainJob(script);
  script.Start();
  try {
    corvane::InstalledPlatform installed(folder, host);
    const int code = corvane::RunConsole(installed.Ports(), [&] { return host.Run(); });
    if (script.Failed().empty()) return code;
  } catch (const corvane::RuntimeError& error) {
    std::fprintf(stderr, "tour: %s\n", error.what());
    return 1;
  }
  std::fprintf(stderr, "tour: %s\n", script.Failed().c_str());
  return 1;
}
