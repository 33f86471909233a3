#include <QApplication>
#include <cstdio>
#include <filesystem>
#include <map>
#include <string>

#include "adapters/qt/QtHost.h"
#include "adapters/qt/look/Look.h"
#include "app/assembly/InstalledPlatform.h"
#include "app/assembly/RunConsole.h"
#include "app/installation/Installation.h"
#include "app/tour/AlarmCatalogue.h"
#include "app/tour/Commands.h"
#include "app/tour/FirstRun.h"
#include "app/tour/HelpPictures.h"
#include "app/tour/MainJob.h"
#include "app/tour/Notifications.h"
#include "app/tour/Script.h"
#include "platform/RuntimeError.h"

namespace {

using AddSteps = void (*)(corvane::tour::Script&);

const std::map<std::string, AddSteps> Tours{
    {"first-run", corvane::tour::AddFirstRun},       {"main-job", corvane::tour::AddMainJob},
    {"commands", corvane::tour::AddCommands},        {"alarm-catalogue", corvane::tour::AddAlarmCatalogue},
    {"alarm-import", corvane::tour::AddAlarmImport},
                                            {"notifications", corvane::tour::AddNotifications}, {"help", corvane::tour::AddHelpPictures}};

}  // namespace

// Drives the real window of an installation through one of the tours and leaves pictures of each step.
int main(int count, char** arguments) {
  QApplication application(count, arguments);
  if (count != 4 || Tours.count(arguments[1]) == 0) {
    std::fprintf(
        stderr,
        "usage: corvane-tour first-run|main-job|commands|alarm-catalogue|alarm-import|notifications|help INSTALLATION PICTURES\n");
    return 2;
  }
  const std::filesystem::path folder = arguments[2];
  std::filesystem::create_directories(arguments[3]);
  corvane::qt::SetUpLook(corvane::qt::Scheme::Light);
  corvane::qt::QtHost host(corvane::qt::FormRegistry::Console(), (folder / corvane::Installation::HelpFolder).string());
  corvane::tour::Script script(arguments[3]);
  Tours.at(arguments[1])(script);
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
