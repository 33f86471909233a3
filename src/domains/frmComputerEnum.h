#pragma once

#include <array>
#include <string>

#include "platform/ui/Form.h"
#include "platform/ui/SimpleControls.h"

namespace corvane {

class modMain;

/// "Computer Name Retrieval": chooses where the lists of a domain's computers come from.
class frmComputerEnum : public ui::Form {
 public:
  explicit frmComputerEnum(modMain& main);

  ui::Frame fraRetrieve{*this, "fraRetrieve"};
  std::array<ui::OptionButton, 3> optRetrieve{ui::OptionButton{*this, "optRetrieve"},
                                              ui::OptionButton{*this, "optRetrieve"},
                                              ui::OptionButton{*this, "optRetrieve"}};
  std::array<ui::Label, 2> lblNote{ui::Label{*this, "lblNote"}, ui::Label{*this, "lblNote"}};
  ui::TextBox txtOU{*this, "txtOU"};
  ui::CommandButton cmdBrowse{*this, "cmdBrowse"};
  ui::CommandButton cmdOK{*this, "cmdOK"};
  ui::CommandButton cmdCancel{*this, "cmdCancel"};

 protected:
  bool Form_Load() override;

 private:
  void SetCaptions();
  void optRetrieve_Click();
  void cmdBrowse_Click();
  void cmdOK_Click();

  void ChooseUnit();
  void Refuse(const std::string& text);

  modMain& main_;
  std::string domain_;
  /// The path behind the name in `txtOU`.
  std::string unitPath_;
};

}  // namespace corvane
