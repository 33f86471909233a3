#pragma once

#include <array>
#include <functional>

#include "core/console/ServiceCommands.h"
#include "platform/ui/Form.h"
#include "platform/ui/SimpleControls.h"

namespace corvane {

class modMain;

/// Starts or stops one of the two services. The opener sets `IsStart` and calls `InitForm` before it shows the form.
class frmControlService : public ui::Form {
 public:
  /// `act` runs the command of the chosen service.
  frmControlService(modMain& main, std::function<void(Service)> act);

  /// Lays the form out for the present states of the services; a missing one counts as stopped.
  void InitForm();

  /// True to start, false to stop.
  bool IsStart = false;

  ui::Frame fraService{*this, "fraService"};
  std::array<ui::OptionButton, 2> optControlService{ui::OptionButton{*this, "optControlService"},
                                                    ui::OptionButton{*this, "optControlService"}};
  ui::CommandButton cmdAction{*this, "cmdAction"};
  ui::CommandButton cmdCancel{*this, "cmdCancel"};

 private:
  void SetOption(ui::OptionButton& option, const char* what, bool running);
  void cmdAction_Click();

  modMain& main_;
  std::function<void(Service)> act_;
};

}  // namespace corvane
