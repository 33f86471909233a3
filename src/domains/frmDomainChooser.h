#pragma once

#include <array>
#include <string>

#include "platform/ui/Form.h"
#include "platform/ui/SimpleControls.h"

namespace corvane {

class modMain;

/// "Select the Primary Domain or Workgroup": chooses what everything in the console is relative to.
class frmDomainChooser : public ui::Form {
 public:
  explicit frmDomainChooser(modMain& main);

  ui::Frame fraFillOutFields{*this, "fraFillOutFields"};
  ui::Label lblManaging{*this, "lblManaging"};
  std::array<ui::OptionButton, 2> optDomain{ui::OptionButton{*this, "optDomain"}, ui::OptionButton{*this, "optDomain"}};
  ui::Label lblStartupDomain{*this, "lblStartupDomain"};
  ui::TextBox txtStartupDomain{*this, "txtStartupDomain"};
  ui::Label lblInstructions{*this, "lblInstructions"};
  ui::CommandButton cmdOK{*this, "cmdOK"};
  ui::CommandButton cmdCancel{*this, "cmdCancel"};

  /// Set by the opener: Cancel then offers to end the program, as the setup cannot go on without a domain.
  bool IsFirstRun = false;

 protected:
  bool Form_Load() override;

 private:
  void optDomain_Click(int index);
  void cmdOK_Click();
  void cmdCancel_Click();

  std::string DomainOfThisComputer() const;
  bool Validate();
  bool ReplaceByFlatName();
  std::string FlatNameOf(const std::string& dnsName) const;

  modMain& main_;
};

}  // namespace corvane
