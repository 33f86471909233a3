#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTreeView>

#include "adapters/qt/bindings/ButtonBinding.h"
#include "adapters/qt/bindings/CheckBinding.h"
#include "adapters/qt/bindings/ComboBoxBinding.h"
#include "adapters/qt/bindings/FrameBinding.h"
#include "adapters/qt/bindings/ImageBinding.h"
#include "adapters/qt/bindings/LabelBinding.h"
#include "adapters/qt/bindings/ListBoxBinding.h"
#include "adapters/qt/bindings/ListViewBinding.h"
#include "adapters/qt/bindings/MenuBinding.h"
#include "adapters/qt/bindings/OptionBinding.h"
#include "adapters/qt/bindings/ProgressBinding.h"
#include "adapters/qt/bindings/StatusBarBinding.h"
#include "adapters/qt/bindings/TabBinding.h"
#include "adapters/qt/bindings/TextBoxBinding.h"
#include "adapters/qt/bindings/TimerBinding.h"
#include "adapters/qt/bindings/ToolbarBinding.h"
#include "adapters/qt/bindings/TreeViewBinding.h"

namespace corvane::qt {
namespace {

/// A binding of the kind when the widget is of the class that the kind needs.
template <class Kind, class Model, class Widget>
std::unique_ptr<Binding> Bind(FormView& view, ui::Control& control, QWidget* widget) {
  auto* fitting = qobject_cast<Widget*>(widget);
  if (fitting == nullptr) return nullptr;
  return std::make_unique<Kind>(view, static_cast<Model&>(control), fitting);
}

template <class Kind, class Model>
std::unique_ptr<Binding> Build(FormView& view, ui::Control& control) {
  return std::make_unique<Kind>(view, static_cast<Model&>(control));
}

}  // namespace

std::unique_ptr<Binding> Binding::Make(FormView& view, ui::Control& control, QWidget* widget) {
  switch (control.Kind()) {
    case ui::ControlKind::Label:
      return Bind<LabelBinding, ui::Label, QLabel>(view, control, widget);
    case ui::ControlKind::CommandButton:
      return Bind<ButtonBinding, ui::CommandButton, QPushButton>(view, control, widget);
    case ui::ControlKind::Frame:
      return Bind<FrameBinding, ui::Frame, QGroupBox>(view, control, widget);
    case ui::ControlKind::Image:
      return Bind<ImageBinding, ui::Image, QLabel>(view, control, widget);
    case ui::ControlKind::CheckBox:
      return Bind<CheckBinding, ui::CheckBox, QCheckBox>(view, control, widget);
    case ui::ControlKind::OptionButton:
      return Bind<OptionBinding, ui::OptionButton, QRadioButton>(view, control, widget);
    case ui::ControlKind::TextBox:
      if (static_cast<ui::TextBox&>(control).MultiLine)
        return Bind<TextBinding, ui::TextBox, QPlainTextEdit>(view, control, widget);
      return Bind<LineBinding, ui::TextBox, QLineEdit>(view, control, widget);
    case ui::ControlKind::ComboBox:
      return Bind<ComboBoxBinding, ui::ComboBox, QComboBox>(view, control, widget);
    case ui::ControlKind::ListBox:
      return Bind<ListBoxBinding, ui::ListBox, QListWidget>(view, control, widget);
    case ui::ControlKind::ListView:
      return Bind<ListViewBinding, ui::ListView, QTreeView>(view, control, widget);
    case ui::ControlKind::TreeView:
      return Bind<TreeViewBinding, ui::TreeView, QTreeView>(view, control, widget);
    case ui::ControlKind::ProgressBar:
      return Bind<ProgressBinding, ui::ProgressBar, QProgressBar>(view, control, widget);
    case ui::ControlKind::TabControl:
      return Bind<TabBinding, ui::TabControl, QTabWidget>(view, control, widget);
    case ui::ControlKind::Toolbar:
      return Build<ToolbarBinding, ui::Toolbar>(view, control);
    case ui::ControlKind::StatusBar:
      return Build<StatusBarBinding, ui::StatusBar>(view, control);
    case ui::ControlKind::MenuItem:
      return Build<MenuBinding, ui::MenuItem>(view, control);
    case ui::ControlKind::Timer:
      return Build<TimerBinding, ui::Timer>(view, control);
  }
  return nullptr;
}

}  // namespace corvane::qt
