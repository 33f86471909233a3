#pragma once

#include "platform/ui/Form.h"
#include "platform/ui/ListControls.h"
#include "platform/ui/SimpleControls.h"

namespace corvane {

class modMain;

/// "Build Priority Code from Facility and Level": the number of a syslog priority put together from its two halves (RFC
/// 3164, section 4.1.1).
class frmPriorityBuilder : public ui::Form {
 public:
  explicit frmPriorityBuilder(modMain& main);

  /// Chooses what the text of the box stands for, or the first entries where it is no priority. OK writes into the box,
  /// which must outlive the form.
  void InitForm(ui::TextBox& priority);

  ui::Label lblFacility{*this, "lblFacility"};
  ui::ComboBox lstFacility{*this, "lstFacility"};
  ui::Label lblLevel{*this, "lblLevel"};
  ui::ComboBox lstLevel{*this, "lstLevel"};
  ui::CommandButton cmdOK{*this, "cmdOK"};
  ui::CommandButton cmdCancel{*this, "cmdCancel"};

 private:
  void cmdOK_Click();

  ui::TextBox* priority_ = nullptr;
};

}  // namespace corvane
