#pragma once

#include <array>
#include <string>
#include <vector>

#include "alarms/Alarm.h"
#include "alarms/AlarmFields.h"
#include "alarms/AlarmTree.h"
#include "platform/ui/Form.h"
#include "platform/ui/ListControls.h"
#include "platform/ui/SimpleControls.h"
#include "platform/ui/TreeView.h"

namespace corvane {

class modMain;

/// "Define Alarms": the catalogue of alarms as a tree on one face, the criteria of one alarm on the other.
class frmAlarms : public ui::Form {
 public:
  explicit frmAlarms(modMain& main);

  ui::Label lblInstructions{*this, "lblInstructions"};

  ui::TreeView tvAlarms{*this, "tvAlarms"};
  ui::Label lblDescription{*this, "lblDescription"};
  ui::TextBox txtDescription{*this, "txtDescription"};
  ui::CommandButton cmdAdd{*this, "cmdAdd"};
  ui::CommandButton cmdEdit{*this, "cmdEdit"};
  ui::CommandButton cmdDelete{*this, "cmdDelete"};
  ui::CommandButton cmdCancel{*this, "cmdCancel"};

  ui::Frame fraTypes{*this, "fraTypes"};
  std::array<ui::CheckBox, 5> chkType{ui::CheckBox{*this, "chkType"}, ui::CheckBox{*this, "chkType"},
                                      ui::CheckBox{*this, "chkType"}, ui::CheckBox{*this, "chkType"},
                                      ui::CheckBox{*this, "chkType"}};
  ui::Frame fraCriteria{*this, "fraCriteria"};
  ui::Label lblSource{*this, "lblSource"};
  ui::TextBox txtSource{*this, "txtSource"};
  ui::Label lblCategory{*this, "lblCategory"};
  ui::TextBox txtCategory{*this, "txtCategory"};
  ui::Label lblUser{*this, "lblUser"};
  ui::TextBox txtUser{*this, "txtUser"};
  ui::Label lblComputer{*this, "lblComputer"};
  ui::TextBox txtComputer{*this, "txtComputer"};
  ui::Label lblEventID{*this, "lblEventID"};
  ui::TextBox txtEventID{*this, "txtEventID"};
  ui::Frame fraEventDesc{*this, "fraEventDesc"};
  std::array<ui::OptionButton, 2> optMatchEntireDescription{ui::OptionButton{*this, "optMatchEntireDescription"},
                                                            ui::OptionButton{*this, "optMatchEntireDescription"}};
  ui::TextBox txtEventDesc{*this, "txtEventDesc"};
  ui::CommandButton cmdCRLF{*this, "cmdCRLF"};
  ui::CommandButton cmdTab{*this, "cmdTab"};
  ui::Frame fraThreshold{*this, "fraThreshold"};
  ui::Label lblThreshold{*this, "lblThreshold"};
  ui::TextBox txtThreshold{*this, "txtThreshold"};
  ui::Label lblThresholdUnit{*this, "lblThresholdUnit"};
  ui::Label lblTimeout{*this, "lblTimeout"};
  ui::TextBox txtTimeout{*this, "txtTimeout"};
  ui::Label lblTimeoutUnit{*this, "lblTimeoutUnit"};
  ui::Label lblSpecificNotification{*this, "lblSpecificNotification"};
  ui::ComboBox lstSpecificNotification{*this, "lstSpecificNotification"};
  ui::CommandButton cmdSave{*this, "cmdSave"};
  ui::CommandButton cmdAbandon{*this, "cmdAbandon"};

 protected:
  bool Form_Load() override;

 private:
  enum class EditMode { None, Adding, Editing };

  void SetTreeCaptions();
  void SetFieldCaptions();
  void WireTree();
  void ShowTreeFace(bool shown);

  void tvAlarms_NodeClick(ui::NodeId node);
  bool tvAlarms_AfterLabelEdit(ui::NodeId node, const std::string& text);
  void cmdAdd_Click();
  void cmdEdit_Click();
  void cmdDelete_Click();
  void cmdSave_Click();
  void cmdAbandon_Click();

  void OpenFields(EditMode mode);
  void LoadAlarmFields();
  void Save();

  void Rename(ui::NodeId node, const std::string& name);
  void RenameNodeKey(const std::string& oldKey, const std::string& newKey);
  void Delete(ui::NodeId node);
  std::string SelectedKey() const;
  std::string ParentIndex(ui::NodeId node) const;

  modMain& main_;
  AlarmTree tree_;
  AlarmFields fields_;
  EditMode mode_ = EditMode::None;
  AlarmPlace place_;
  /// The key of the node that was selected when Add was pressed, or of the category whose name is being changed.
  std::string rememberedKey_;
};

}  // namespace corvane
