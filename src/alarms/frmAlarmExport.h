#pragma once

#include "alarms/AlarmPicker.h"
#include "alarms/ChosenTree.h"
#include "core/PrivateProfile.h"
#include "platform/RuntimeError.h"
#include "platform/ui/Form.h"
#include "platform/ui/ListView.h"
#include "platform/ui/SimpleControls.h"
#include "platform/ui/TreeView.h"

namespace corvane {

/// "Export Alarms and Alarm Bundles": writes chosen alarms and bundles into an exchange file.
class frmAlarmExport : public ui::Form {
 public:
  explicit frmAlarmExport(modMain& main);

  ui::Label lblInfo{*this, "lblInfo"};
  /// Stands before the box, which is not typed into, so that the focus begins here.
  ui::CommandButton cmdBrowse{*this, "cmdBrowse"};
  ui::Label lblFile{*this, "lblFile"};
  ui::TextBox txtFile{*this, "txtFile"};
  ui::Label lblAlarms{*this, "lblAlarms"};
  ui::TreeView tvAlarms{*this, "tvAlarms"};
  ui::Label lblAlarmGroups{*this, "lblAlarmGroups"};
  ui::ListView lvwAlarmGroups{*this, "lvwAlarmGroups"};
  ui::CommandButton cmdAdd{*this, "cmdAdd"};
  ui::CommandButton cmdDown{*this, "cmdDown"};
  ui::Label lblSelectedAlarms{*this, "lblSelectedAlarms"};
  ui::TreeView tvSelectedAlarms{*this, "tvSelectedAlarms"};
  ui::CommandButton cmdOK{*this, "cmdOK"};
  ui::CommandButton cmdCancel{*this, "cmdCancel"};

 protected:
  bool Form_Load() override;

 private:
  void SetCaptions();
  void WireHandlers();

  void cmdBrowse_Click();
  void cmdAdd_Click();
  void cmdDown_Click();
  void cmdOK_Click();

  bool HasFile() const { return !file_.FileName.empty(); }
  bool WriteExportFile();
  void TellError(const RuntimeError& error);

  modMain& main_;
  AlarmPicker picker_;
  ChosenTree chosen_;
  PrivateProfile file_;
};

}  // namespace corvane
