#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSplitter>
#include <QTabWidget>
#include <QTreeView>
#include <QVBoxLayout>

#include <array>

#include "adapters/qt/FormRegistry.h"
#include "platform/ui/Commands.h"
#include "platform/ui/Form.h"
#include "platform/ui/ListControls.h"
#include "platform/ui/ListView.h"
#include "platform/ui/SimpleControls.h"
#include "platform/ui/TreeView.h"

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
    cmdOK.Click = [this] { Unload(); };
    cmdCancel.Click = [this] { Unload(); };
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

  static void Place(QWidget& content) {
    content.resize(640, 480);
    auto* column = new QVBoxLayout(&content);
    Put<QLabel>(*column, "lblName");
    Put<QLineEdit>(*column, "txtName");
    Put<QComboBox>(*column, "lstLog");
    auto* tabs = Put<QTabWidget>(*column, "tabMain");
    auto* splitter = new QSplitter;
    Put<QTreeView>(*splitter, "lvwRows");
    Put<QTreeView>(*splitter, "tvTree");
    tabs->addTab(splitter, QString());
    tabs->addTab(new QWidget, QString());
    Put<QPushButton>(*column, "cmdOK");
    Put<QPushButton>(*column, "cmdCancel");
  }

 private:
  template <class Widget, class Place>
  static Widget* Put(Place& place, const char* name) {
    auto* widget = new Widget;
    widget->setObjectName(name);
    place.addWidget(widget);
    return widget;
  }
};

/// A form with choices.
class frmChoices : public ui::Form {
 public:
  explicit frmChoices(ui::UiHost& host) : Form(host, "frmChoices") {
    for (int i : {0, 1}) optSource[static_cast<std::size_t>(i)].Index = i;
    optSource[0].Caption = "&First";
    optSource[1].Caption = "&Second";
    chkAll.Caption = "&All";
  }

  std::array<ui::OptionButton, 2> optSource{ui::OptionButton{*this, "optSource"}, ui::OptionButton{*this, "optSource"}};
  ui::CheckBox chkAll{*this, "chkAll"};
  ui::TextBox txtName{*this, "txtName"};

  static void Place(QWidget& content) {
    auto* column = new QVBoxLayout(&content);
    for (const char* name : {"optSource_0", "optSource_1"}) Named(*column, new QRadioButton, name);
    Named(*column, new QCheckBox, "chkAll");
    Named(*column, new QLineEdit, "txtName");
  }

 private:
  static void Named(QVBoxLayout& column, QWidget* widget, const char* name) {
    widget->setObjectName(name);
    column.addWidget(widget);
  }
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
  ui::MenuItem mnuPopupDelete{mnuPopup, "mnuPopupDelete", "&Delete"};
  ui::Toolbar tbrMain{*this, "tbrMain"};
  ui::StatusBar stbMain{*this, "stbMain"};

  static void Place(QWidget& content) { content.resize(400, 300); }
};

inline qt::FormRegistry TestForms() {
  qt::FormRegistry forms;
  forms.Add("frmTest", {frmTest::Place});
  forms.Add("frmChoices", {frmChoices::Place});
  forms.Add("frmMenus", {frmMenus::Place});
  return forms;
}

}  // namespace corvane::test
