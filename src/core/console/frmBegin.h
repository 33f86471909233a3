#pragma once

#include "platform/ui/Form.h"
#include "platform/ui/SimpleControls.h"

namespace corvane {

class modMain;

/// The notice of a first run: what to have at hand before the setup begins.
class frmBegin : public ui::Form {
 public:
  explicit frmBegin(modMain& main);

  ui::Image imgBegin{*this, "imgBegin"};
  ui::Label lblTitle{*this, "lblTitle"};
  ui::TextBox txtSteps{*this, "txtSteps"};
  ui::Image imgSupport{*this, "imgSupport"};
  ui::Image imgEA{*this, "imgEA"};
  ui::CommandButton cmdStart{*this, "cmdStart"};

 private:
  void imgEA_Click(int shift);

  modMain& main_;
};

}  // namespace corvane
