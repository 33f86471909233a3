#include "core/console/frmControlService.h"

#include <string>

#include "core/ServiceControl.h"
#include "core/modMain.h"

namespace corvane {
namespace {

constexpr int HelpTopic = 160;

}  // namespace

frmControlService::frmControlService(modMain& main, std::function<void(Service)> act)
    : Form(main.Ui, "frmControlService"), main_(main), act_(std::move(act)) {
  Caption = "Control Corvane Services";
  HelpContext = HelpTopic;
  fraService.Caption = "Choose a service";
  optControlService[0].Index = 0;
  optControlService[1].Index = 1;
  cmdAction.Default = cmdCancel.Cancel = true;
  cmdCancel.Caption = "Cancel";
  cmdAction.Click = [this] { cmdAction_Click(); };
  cmdCancel.Click = [this] { Unload(); };
}

void frmControlService::InitForm() {
  cmdAction.Caption = IsStart ? "Start" : "Stop";
  ServiceManager& services = main_.Platform.Services;
  SetOption(optControlService[0], IsStart ? "&Start the Corvane Service" : "&Stop the Corvane Service",
            CorvaneServiceState(services) == 1);
  SetOption(optControlService[1],
            IsStart ? "S&tart the Corvane Syslog Bridge Service" : "S&top the Corvane Syslog Bridge Service",
            SyslogBridgeState(services) == 1);
  const bool first = optControlService[0].Enabled;
  const bool second = optControlService[1].Enabled;
  ui::ChooseOption(optControlService, first ? 0 : (second ? 1 : -1));
  cmdAction.Enabled = first || second;
}

void frmControlService::SetOption(ui::OptionButton& option, const char* what, bool running) {
  option.Caption = std::string(what) + (running ? " (currently running)" : " (currently stopped)");
  option.Enabled = running != IsStart;
}

void frmControlService::cmdAction_Click() {
  MousePointer = ui::Pointer::Hourglass;
  const int chosen = ui::ChosenOption(optControlService);
  if (chosen >= 0) act_(chosen == 0 ? Service::Monitoring : Service::SyslogBridge);
  MousePointer = ui::Pointer::Default;
  Unload();
}

}  // namespace corvane
