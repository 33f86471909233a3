#pragma once

#include <optional>
#include <string>

#include "platform/ui/Form.h"
#include "platform/ui/ListControls.h"
#include "platform/ui/ListView.h"
#include "platform/ui/SimpleControls.h"

namespace corvane {

class modMain;

/// "Define Custom Notifications": the list of subjects and bodies with placeholders on one face, the fields of one of
/// them on the other.
class frmCustomNotifications : public ui::Form {
 public:
  explicit frmCustomNotifications(modMain& main);

  ui::Label lblInfo{*this, "lblInfo"};
  ui::Frame fraModifyCustomNotifications{*this, "fraModifyCustomNotifications"};
  ui::ListView lvwCustomNotifications{*this, "lvwCustomNotifications"};
  ui::CommandButton cmdAdd{*this, "cmdAdd"};
  ui::CommandButton cmdEdit{*this, "cmdEdit"};
  ui::CommandButton cmdDelete{*this, "cmdDelete"};
  ui::Label lblSubjectExpanded{*this, "lblSubjectExpanded"};
  ui::TextBox txtSubjectExpanded{*this, "txtSubjectExpanded"};
  ui::Label lblBodyExpanded{*this, "lblBodyExpanded"};
  ui::TextBox txtBodyExpanded{*this, "txtBodyExpanded"};
  ui::CommandButton cmdCancel{*this, "cmdCancel"};

  ui::Frame fraCustomNotificationProps{*this, "fraCustomNotificationProps"};
  ui::Label lblName{*this, "lblName"};
  ui::TextBox txtName{*this, "txtName"};
  ui::Label lblSubject{*this, "lblSubject"};
  ui::TextBox txtSubject{*this, "txtSubject"};
  ui::Label lblBody{*this, "lblBody"};
  ui::TextBox txtBody{*this, "txtBody"};
  ui::Label lblPlaceholders{*this, "lblPlaceholders"};
  ui::ComboBox cmbPlaceholders{*this, "cmbPlaceholders"};
  ui::CommandButton cmdInsert{*this, "cmdInsert"};
  ui::CommandButton cmdSave{*this, "cmdSave"};
  ui::CommandButton cmdAbandon{*this, "cmdAbandon"};

 protected:
  bool Form_Load() override;

 private:
  void SetCaptions();
  void SetUpControls();
  void WireHandlers();

  void cmdAdd_Click();
  void cmdEdit_Click();
  void cmdDelete_Click();
  void cmdInsert_Click();
  void cmdSave_Click();

  void ShowListFace(bool shown);
  void FillList();
  void ShowExpanded();
  void OpenFields();
  void CloseFields();
  void LoadFields(const std::string& name);
  void Delete(const std::string& name);
  /// Why the fields cannot be saved; empty when they can.
  std::string Fault() const;
  /// Write the fields; false, with a message, when the database refuses them.
  bool Insert();
  bool Update();
  /// Keeps where the caret stands.
  void NoteCaret(ui::TextBox& box);
  /// Marks one of the two boxes that Insert writes into; null for neither.
  void Mark(const ui::TextBox* box);
  void Refuse(const std::string& text);

  modMain& main_;
  /// The name under which the edited one stands; nothing while one is being added.
  std::optional<std::string> oldName_;
  /// Where the caret stood at the last change or click, and in which of the two boxes.
  ui::TextBox* caretBox_ = &txtBody;
  int caret_ = 0;
};

}  // namespace corvane
