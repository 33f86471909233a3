#include "core/console/ServiceCommands.h"

#include <string>

#include "core/ServiceControl.h"
#include "core/modMain.h"
#include "platform/ui/UiHost.h"

namespace corvane {
namespace {

using Routine = int (*)(ServiceManager&);

std::string NameOf(Service service) {
  return service == Service::Monitoring ? "The Corvane Service" : "The Syslog Bridge Service";
}

Routine Choose(Service service, Routine monitoring, Routine bridge) {
  return service == Service::Monitoring ? monitoring : bridge;
}

// A missing service is not there "already": the request is made, and fails.
bool RunCommand(modMain& main, Service service, int already, const char* participle, Routine state, Routine request) {
  ServiceManager& services = main.Platform.Services;
  if (state(services) == already) {
    main.Ui.MsgBox(NameOf(service) + " is already " + (already == 1 ? "running." : "stopped."),
                   ui::MsgIcon::Exclamation);
    return false;
  }
  if (request(services) != 1) return false;
  main.Ui.MsgBox(NameOf(service) + " has been " + participle + " successfully.", ui::MsgIcon::Information);
  return true;
}

}  // namespace

bool StartServiceByCommand(modMain& main, Service service) {
  return RunCommand(main, service, 1, "started", Choose(service, CorvaneServiceState, SyslogBridgeState),
                    Choose(service, StartCorvaneServiceNow, StartSyslogBridgeNow));
}

bool StopServiceByCommand(modMain& main, Service service) {
  return RunCommand(main, service, 0, "stopped", Choose(service, CorvaneServiceState, SyslogBridgeState),
                    Choose(service, StopCorvaneServiceNow, StopSyslogBridgeNow));
}

}  // namespace corvane
