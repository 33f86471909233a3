#pragma once

#include <array>

#include "adapters/qt/FormRegistry.h"
#include "platform/ui/Commands.h"
#include "platform/ui/Form.h"
#include "platform/ui/ListControls.h"
#include "platform/ui/ListView.h"
#include "platform/ui/SimpleControls.h"
#include "platform/ui/TreeView.h"
#include "ui_frmTest.h"

namespace corvane::test {

/// A form with the controls that the tests act on.
class frmTest : public ui::Form {
 public:
  explicit frmTest(ui::UiHost& host) : Form(host, "frmTest") {
    cmdOK.Caption = "&OK";
    cmdCancel.Caption = "Cancel";
    cmdOK.Default = cmdCancel.Cancel = true;
    lblName.Caption = "&Name";
    lstLog.Editable = false;
    tmrTick.Enabled = false;
    txtNotes.MultiLine = true;
    optSource[0].Index = 0;
    optSource[1].Index = 1;
    cmdOK.Click = cmdCancel.Click = [this] { Unload(); };
  }

  ui::Label lblName{*this, "lblName"};
  ui::TextBox txtName{*this, "txtName"};
  ui::ComboBox lstLog{*this, "lstLog"};
  ui::TabControl tabMain{*this, "tabMain"};
  ui::ListView lvwRows{*this, "lvwRows"};
  ui::TreeView tvTree{*this, "tvTree"};
  ui::CommandButton cmdOK{*this, "cmdOK"};
  ui::CommandButton cmdCancel{*this, "cmdCancel"};
  ui::Timer tmrTick{*this, "tmrTick"};
  std::array<ui::OptionButton, 2> optSource{ui::OptionButton{*this, "optSource"}, ui::OptionButton{*this, "optSource"}};
  ui::CheckBox chkAll{*this, "chkAll"};
  ui::TextBox txtNotes{*this, "txtNotes"};
};

/// A form with a menu, so that it becomes a main window.
class frmMenus : public ui::Form {
 public:
  explicit frmMenus(ui::UiHost& host) : Form(host, "frmMenus") {
    mnuPopup.Popup = true;
    mnuFileRefresh.Shortcut = "F5";
  }

  ui::MenuItem mnuFile{*this, "mnuFile", "&File"};
  ui::MenuItem mnuFileRefresh{mnuFile, "mnuFileRefresh", "&Refresh"};
  ui::MenuItem mnuPopup{*this, "mnuPopup", ""};
  ui::Toolbar tbrMain{*this, "tbrMain"};
};

inline qt::FormRegistry TestForms() {
  qt::FormRegistry forms;
  forms.Add("frmTest", {[](QWidget& content) { Ui::frmTest().setupUi(&content); }});
  forms.Add("frmMenus", {[](QWidget& content) { content.resize(400, 300); }});
  return forms;
}

}  // namespace corvane::test
