#pragma once

#include <optional>
#include <string>

#include "alarms/BundleMembers.h"
#include "platform/ui/Form.h"
#include "platform/ui/ListView.h"
#include "platform/ui/SimpleControls.h"
#include "platform/ui/TreeView.h"

namespace corvane {

class modMain;

/// "Define Alarm Bundles": the list of bundles on one face, the name and members of one bundle on the other.
class frmAlarmGroups : public ui::Form {
 public:
  explicit frmAlarmGroups(modMain& main);

  ui::Label lblInfo{*this, "lblInfo"};
  ui::Frame fraModifyAlarmGroups{*this, "fraModifyAlarmGroups"};
  ui::TreeView tvAlarmGroups{*this, "tvAlarmGroups"};
  ui::CommandButton cmdAdd{*this, "cmdAdd"};
  ui::CommandButton cmdEdit{*this, "cmdEdit"};
  ui::CommandButton cmdDelete{*this, "cmdDelete"};
  ui::CommandButton cmdCancel{*this, "cmdCancel"};

  ui::Frame fraAlarmGroupProps{*this, "fraAlarmGroupProps"};
  ui::Label lblGroupName{*this, "lblGroupName"};
  ui::TextBox txtGroupName{*this, "txtGroupName"};
  ui::Label lblAlarms{*this, "lblAlarms"};
  ui::TreeView tvAlarms{*this, "tvAlarms"};
  ui::CommandButton cmdAlarmAdd{*this, "cmdAlarmAdd"};
  ui::Label lblMembers{*this, "lblMembers"};
  ui::ListView lvwAlarms{*this, "lvwAlarms"};
  ui::CommandButton cmdDown{*this, "cmdDown"};
  ui::CommandButton cmdSave{*this, "cmdSave"};
  ui::CommandButton cmdAbandon{*this, "cmdAbandon"};

 protected:
  bool Form_Load() override;

 private:
  void SetCaptions();
  void WireHandlers();

  void cmdAdd_Click();
  void cmdEdit_Click();
  void cmdDelete_Click();
  void cmdSave_Click();
  void cmdAbandon_Click();

  void ShowListFace(bool shown);
  void OpenProperties(const std::string& name, const std::optional<std::string>& bundleId);
  void CloseProperties();
  void FillBundles();
  void SaveBundle();
  void Delete(const std::string& name);
  /// The name of the selected bundle. Nothing, with a message, when none is selected.
  std::optional<std::string> SelectedBundle();
  void Refuse(const std::string& text);

  modMain& main_;
  BundleMembers members_;
  /// The bundle that is being edited; nothing while one is being added.
  std::optional<std::string> bundleId_;
};

}  // namespace corvane
