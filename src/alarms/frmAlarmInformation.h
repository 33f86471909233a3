#pragma once

#include "alarms/Alarm.h"
#include "platform/ui/Form.h"
#include "platform/ui/ListControls.h"
#include "platform/ui/SimpleControls.h"
#include "platform/ui/TreeView.h"

namespace corvane {

class modMain;

/// "Alarm Information": the name of an alarm and its place in the catalogue, asked for once its criteria have passed.
class frmAlarmInformation : public ui::Form {
 public:
  /// `place` gives the name and comment to begin with and takes what was chosen. It is left alone unless OK passes.
  frmAlarmInformation(modMain& main, AlarmPlace& place);

  ui::Label lblName{*this, "lblName"};
  ui::TextBox txtName{*this, "txtName"};
  ui::Label lblDescription{*this, "lblDescription"};
  ui::TextBox txtDescription{*this, "txtDescription"};
  ui::Frame fraPlace{*this, "fraPlace"};
  ui::Label lblPlace{*this, "lblPlace"};
  ui::Label lblOS{*this, "lblOS"};
  ui::ComboBox lstOS{*this, "lstOS"};
  ui::Label lblLogType{*this, "lblLogType"};
  ui::ComboBox lstLogType{*this, "lstLogType"};
  ui::Label lblCategory{*this, "lblCategory"};
  ui::ComboBox lstCategory{*this, "lstCategory"};
  ui::CommandButton cmdOK{*this, "cmdOK"};
  ui::CommandButton cmdCancel{*this, "cmdCancel"};

  /// Fills the lists and chooses in them what the selected node of the catalogue says. Raises when the lists cannot be
  /// read.
  void InitForm(const ui::TreeView& catalogue);
  /// OK has passed.
  bool Confirmed() const { return confirmed_; }

 private:
  void SetCaptions();
  void Preselect(const ui::TreeView& catalogue, ui::NodeId node);
  void FillOSList();
  void FillLogTypeList();
  void FillCategoryList();
  void lstOS_Click();
  void lstLogType_Click();
  void cmdOK_Click();

  bool HasRefusedText();
  bool HasNameInUse();
  bool IsNewCategory() const;
  bool Refuse(const std::string& why);

  modMain& main_;
  AlarmPlace& place_;
  bool confirmed_ = false;
};

}  // namespace corvane
