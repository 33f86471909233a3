#pragma once

#include "logs/AlarmAssignment.h"
#include "logs/NotificationAssignment.h"
#include "platform/ui/Form.h"
#include "platform/ui/ListControls.h"
#include "platform/ui/ListView.h"
#include "platform/ui/SimpleControls.h"
#include "platform/ui/TreeView.h"

namespace corvane {

/// "Log Watching Options": defines one watched log, with its alarms, ignore events and notifications. Adds one when
/// `modMain::IsNewLog` is set, else edits the one selected in the main list.
class frmLogEdit : public ui::Form {
 public:
  explicit frmLogEdit(modMain& main);

  ui::TabControl tabMain{*this, "tabMain"};

  ui::Frame fraComputerName{*this, "fraComputerName"};
  ui::ComboBox lstComputerName{*this, "lstComputerName"};
  ui::Label lblWait{*this, "lblWait"};
  ui::Frame fraLogType{*this, "fraLogType"};
  ui::ComboBox lstLogType{*this, "lstLogType"};
  ui::Frame fraServerStatistics{*this, "fraServerStatistics"};
  ui::ListBox lstServerStatistics{*this, "lstServerStatistics"};
  ui::Frame fraStatistics{*this, "fraStatistics"};
  ui::ListBox lstStatistics{*this, "lstStatistics"};

  ui::Label lblSelectedDenyAlarms{*this, "lblSelectedDenyAlarms"};
  ui::TreeView tvSelectedDenyAlarms{*this, "tvSelectedDenyAlarms"};
  ui::CommandButton cmdDenyAdd{*this, "cmdDenyAdd"};
  ui::CommandButton cmdDenyDown{*this, "cmdDenyDown"};
  ui::Label lblDenyAlarms{*this, "lblDenyAlarms"};
  ui::TreeView tvDenyAlarms{*this, "tvDenyAlarms"};
  ui::Label lblDenyGroups{*this, "lblDenyGroups"};
  ui::ListView lvwDenyGroups{*this, "lvwDenyGroups"};

  ui::Label lblSelectedAlarms{*this, "lblSelectedAlarms"};
  ui::TreeView tvSelectedAlarms{*this, "tvSelectedAlarms"};
  ui::CommandButton cmdAdd{*this, "cmdAdd"};
  ui::CommandButton cmdDown{*this, "cmdDown"};
  ui::Label lblAlarms{*this, "lblAlarms"};
  ui::TreeView tvAlarms{*this, "tvAlarms"};
  ui::Label lblAlarmGroups{*this, "lblAlarmGroups"};
  ui::ListView lvwAlarmGroups{*this, "lvwAlarmGroups"};

  ui::Label lblActiveNotifications{*this, "lblActiveNotifications"};
  ui::ListView lvwActiveNotifications{*this, "lvwActiveNotifications"};
  ui::CommandButton cmdNotAdd{*this, "cmdNotAdd"};
  ui::CommandButton cmdNotDown{*this, "cmdNotDown"};
  ui::Label lblNotifications{*this, "lblNotifications"};
  ui::ListView lvwNotifications{*this, "lvwNotifications"};

  ui::Label lblInfo{*this, "lblInfo"};
  ui::CommandButton cmdOK{*this, "cmdOK"};
  ui::CommandButton cmdCancel{*this, "cmdCancel"};
  ui::Timer tmrLoad{*this, "tmrLoad"};

 protected:
  bool Form_Load() override;

 private:
  void SetCaptions();
  void WireHandlers();

  void tmrLoad_Timer();
  void tabMain_Click();
  void cmdOK_Click();
  void cmdCancel_Click();

  void OpenForAdd();
  void OpenForEdit();
  void LoadComputerAndLog(const std::string& idName);
  void SetBusy(bool busy);

  bool HasAssociatedAlarm() const;
  bool CheckNewLog();
  bool InsertWatchedLog();
  bool UpdateWatchedLog();
  void InsertServerRow(const std::string& idName, const std::string& first, const std::string& second);
  void SaveAttachments(const std::string& idName);
  std::string IDName() const;
  std::string Domain() const;
  void Refuse(const std::string& text);

  modMain& main_;
  /// Only the first duplicate of the whole screen is told.
  bool duplicateReported_ = false;
  AlarmAssignment ignores_;
  AlarmAssignment alarms_;
  NotificationAssignment notifications_;
};

}  // namespace corvane
