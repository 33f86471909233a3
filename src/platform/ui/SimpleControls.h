#pragma once

#include <string>
#include <vector>

#include "platform/ui/Control.h"

namespace corvane::ui {

/// A caption. With a mnemonic it names the control declared behind it.
struct Label : Control {
  Label(Form& form, std::string_view name) : Control(form, name, ControlKind::Label) {}
  std::string Caption;
};

struct CommandButton : Control {
  CommandButton(Form& form, std::string_view name) : Control(form, name, ControlKind::CommandButton) {}
  std::string Caption;
  /// Pressed by Enter and by Escape.
  bool Default = false;
  bool Cancel = false;
  Handler Click;
};

/// A titled group of controls.
struct Frame : Control {
  Frame(Form& form, std::string_view name) : Control(form, name, ControlKind::Frame) {}
  std::string Caption;
};

/// A picture, named by its key in the program's resources.
struct Image : Control {
  Image(Form& form, std::string_view name) : Control(form, name, ControlKind::Image) {}
  std::string Picture;
  /// Shift state: 1 Shift, 2 Ctrl, 4 Alt, added up.
  std::function<void(int shift)> Click;
};

struct TextBox : Control {
  TextBox(Form& form, std::string_view name) : Control(form, name, ControlKind::TextBox) {}
  std::string Text;
  /// Shown and copied, but not typed into.
  bool Locked = false;
  bool MultiLine = false;
};

struct ProgressBar : Control {
  ProgressBar(Form& form, std::string_view name) : Control(form, name, ControlKind::ProgressBar) {}
  int Min = 0;
  int Max = 100;
  int Value = 0;
};

/// Pages with captions; which control stands on which page is the layout's affair.
struct TabControl : Control {
  TabControl(Form& form, std::string_view name) : Control(form, name, ControlKind::TabControl) {}
  std::vector<std::string> Captions;
  /// The page in front, counted from 0.
  int Tab = 0;
  /// Runs after the user has brought another page to the front.
  Handler Click;
};

struct StatusPanel {
  std::string Key;
  std::string Text;
  std::string Picture;
};

struct StatusBar : Control {
  StatusBar(Form& form, std::string_view name) : Control(form, name, ControlKind::StatusBar) {}
  std::vector<StatusPanel> Panels;
};

/// Fires every `Interval` milliseconds while it is enabled and its form is shown.
struct Timer : Control {
  Timer(Form& form, std::string_view name) : Control(form, name, ControlKind::Timer) {}
  int Interval = 0;
  Handler Tick;
};

}  // namespace corvane::ui
