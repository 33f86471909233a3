#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>

#include "notifications/DatabaseTarget.h"
#include "notifications/NotificationStore.h"
#include "platform/ui/Form.h"
#include "platform/ui/ListControls.h"
#include "platform/ui/ListView.h"
#include "platform/ui/SimpleControls.h"

namespace corvane {

/// "Define Notifications": the list of notifications on one face; on the other, by tabs, the ways in which one of them
/// reports.
class frmNotifications : public ui::Form {
 public:
  frmNotifications(modMain& main, TargetConnector& connector);

  /// Lets the user build a priority code from what stands in a box, and writes it there. Without it there is no button.
  std::function<void(ui::TextBox& priority)> BuildPriority;
  /// Tries out the notification of a name. Without it there is no button.
  std::function<void(const std::string& name)> Test;

  ui::Label lblInstructions{*this, "lblInstructions"};
  ui::Frame fraModifyNotifications{*this, "fraModifyNotifications"};
  ui::ListView lvwNotifications{*this, "lvwNotifications"};
  ui::CommandButton cmdAdd{*this, "cmdAdd"};
  ui::CommandButton cmdEdit{*this, "cmdEdit"};
  ui::CommandButton cmdDelete{*this, "cmdDelete"};
  ui::CommandButton cmdTest{*this, "cmdTest"};
  ui::CommandButton cmdCancel{*this, "cmdCancel"};

  ui::TabControl tabMain{*this, "tabMain"};
  ui::Label lblName{*this, "lblName"};
  ui::TextBox txtName{*this, "txtName"};
  ui::CheckBox chkCustom{*this, "chkCustom"};
  ui::ComboBox cmbCustom{*this, "cmbCustom"};

  ui::CheckBox chkEmail{*this, "chkEmail"};
  ui::Label lblRecipient{*this, "lblRecipient"};
  ui::TextBox txtRecipient{*this, "txtRecipient"};

  ui::CheckBox chkPager{*this, "chkPager"};
  ui::Label lblPhone{*this, "lblPhone"};
  ui::TextBox txtPhone{*this, "txtPhone"};
  ui::Label lblPagerString{*this, "lblPagerString"};
  ui::TextBox txtPagerString{*this, "txtPagerString"};

  ui::CheckBox chkPopup{*this, "chkPopup"};
  ui::Label lblNetwork{*this, "lblNetwork"};
  ui::TextBox txtNetwork{*this, "txtNetwork"};

  ui::CheckBox chkDB{*this, "chkDB"};
  std::array<ui::OptionButton, 2> optDatabaseType{{{*this, "optDatabaseType"}, {*this, "optDatabaseType"}}};
  ui::Label lblDBConnection{*this, "lblDBConnection"};
  ui::TextBox txtDBConnection{*this, "txtDBConnection"};
  ui::CommandButton cmdDataODBCBrowse{*this, "cmdDataODBCBrowse"};
  ui::Label lblTableName{*this, "lblTableName"};
  ui::ComboBox lstTableName{*this, "lstTableName"};

  ui::CheckBox chkSysLog{*this, "chkSysLog"};
  ui::Label lblSyslogServer{*this, "lblSyslogServer"};
  ui::TextBox txtSyslogServer{*this, "txtSyslogServer"};
  ui::Label lblUDPPort{*this, "lblUDPPort"};
  ui::ComboBox txtUDPPort{*this, "txtUDPPort"};
  ui::Label lblPriority{*this, "lblPriority"};
  ui::TextBox txtPriority{*this, "txtPriority"};
  ui::CommandButton cmdPriority{*this, "cmdPriority"};
  ui::Label lblPriorityInfo{*this, "lblPriorityInfo"};

  ui::Label lblInfo{*this, "lblInfo"};
  ui::CommandButton cmdSave{*this, "cmdSave"};
  ui::CommandButton cmdAbandon{*this, "cmdAbandon"};

  /// Makes a table in the database that is chosen. False, with a message, when that fails.
  bool CreateTable(const std::string& name) { return target_.CreateTable(name); }

 protected:
  bool Form_Load() override;

 private:
  void SetCaptions();
  void SetTabCaptions();
  void WireHandlers();
  void WireWays();

  void tabMain_Click();
  void cmdEdit_Click();
  void cmdDelete_Click();
  void cmdSave_Click();

  void ShowListFace(bool shown);
  void EnableFields();
  void FillList();
  /// Shows the list, read anew, with the notification of this name selected.
  void OpenList(const std::string& name);
  void OpenFields();
  void FillTemplates();
  void ClearNotificationFields();
  void LoadNotification(const std::string& name);
  void LoadSyslog(const Notification& notification);
  bool SaveNotification();
  bool Save();
  Notification Fields() const;
  void Delete(const std::string& name);
  std::string SelectedName() const;
  /// False, for a caller that ends with it.
  bool Refuse(const std::string& text);

  modMain& main_;
  DatabaseTarget target_;
  /// The name at the start of an edit; nothing while a notification is being added.
  std::optional<std::string> oldName_;
  bool hasModem_ = false;
};

}  // namespace corvane
