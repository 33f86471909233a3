#pragma once

#include <array>

#include "platform/ui/Form.h"
#include "platform/ui/SimpleControls.h"

namespace corvane {

class modMain;

/// The splash window of a start, and Help, About. The opener sets `IsAbout` between loading and showing.
class frmStartup : public ui::Form {
 public:
  explicit frmStartup(modMain& main);

  /// Lays the form out as the splash (false) or as About (true).
  void SetAbout(bool about);

  ui::Image imgStartup{*this, "imgStartup"};
  ui::Label lblProduct{*this, "lblProduct"};
  ui::Label lblVersion{*this, "lblVersion"};
  std::array<ui::Label, 2> lblStartupInfo{ui::Label{*this, "lblStartupInfo"}, ui::Label{*this, "lblStartupInfo"}};
  ui::Label lblCopyright{*this, "lblCopyright"};
  ui::Label lblProgress{*this, "lblProgress"};
  ui::ProgressBar prgStartup{*this, "prgStartup"};
  ui::CommandButton cmdClose{*this, "cmdClose"};

 protected:
  bool Form_Load() override;

 private:
  modMain& main_;
};

}  // namespace corvane
