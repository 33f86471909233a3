#pragma once

#include <string>

#include "platform/ui/Form.h"
#include "platform/ui/ListView.h"
#include "platform/ui/SimpleControls.h"

namespace corvane {

class modMain;
struct CustomMapping;

/// "Manage Custom Domains": maps computers that the network cannot list to domains of the user's own making.
class frmCustomDomainManager : public ui::Form {
 public:
  explicit frmCustomDomainManager(modMain& main);

  ui::Frame fraMappings{*this, "fraMappings"};
  ui::ListView lvwComputers{*this, "lvwComputers"};
  ui::CommandButton cmdRemove{*this, "cmdRemove"};
  ui::Frame fraAdd{*this, "fraAdd"};
  ui::Label lblComputer{*this, "lblComputer"};
  ui::TextBox txtComputer{*this, "txtComputer"};
  ui::Label lblDomain{*this, "lblDomain"};
  ui::TextBox txtDomain{*this, "txtDomain"};
  ui::CommandButton cmdAdd{*this, "cmdAdd"};
  ui::CommandButton cmdOK{*this, "cmdOK"};
  ui::CommandButton cmdCancel{*this, "cmdCancel"};

 protected:
  bool Form_Load() override;

 private:
  void SetCaptions();
  void lvwComputers_ColumnClick(int column);
  bool txtComputer_KeyPress(char32_t character);
  void cmdAdd_Click();
  void cmdRemove_Click();
  void cmdOK_Click();

  void AddRow(const CustomMapping& mapping);
  void RenewDomainBox();

  modMain& main_;
};

}  // namespace corvane
