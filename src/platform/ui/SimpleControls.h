#pragma once

#include <array>
#include <cstddef>
#include <functional>
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

struct CheckBox : Control {
  CheckBox(Form& form, std::string_view name) : Control(form, name, ControlKind::CheckBox) {}

  std::string Caption;
  bool Value = false;
  /// The user ticked the box or took the tick away.
  Handler Click;
};

/// One of several choices. The options of one name in a form belong together: the user choosing one leaves the others.
struct OptionButton : Control {
  OptionButton(Form& form, std::string_view name) : Control(form, name, ControlKind::OptionButton) {}

  std::string Caption;
  bool Value = false;
  /// The user chose this option.
  Handler Click;
};

/// Turns the option of an index on and the others off; -1 turns all off.
template <std::size_t Count>
void ChooseOption(std::array<OptionButton, Count>& group, int index) {
  for (std::size_t i = 0; i < Count; ++i) group[i].Value = static_cast<int>(i) == index;
}

/// Index of the option that is on; -1 for none.
template <std::size_t Count>
int ChosenOption(const std::array<OptionButton, Count>& group) {
  for (std::size_t i = 0; i < Count; ++i)
    if (group[i].Value) return static_cast<int>(i);
  return -1;
}

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
  /// Of several lines, parted by CR LF.
  bool MultiLine = false;
  /// Shown as dots, and never copied or undone.
  bool IsPassword = false;
  /// Drawn on a ground of its own, so that the user sees which of several boxes a button will act on.
  bool Highlighted = false;
  /// The most characters that the user may type; 0 for any number.
  int MaxLength = 0;
  /// Where the caret stands: the count of characters before it, a line break of several lines counting as two.
  int SelStart = 0;
  /// The user changed the text; the caret stands behind what is new.
  Handler Change;
  /// The user clicked into the box; the caret stands where the click put it.
  Handler Click;
  /// Asked for each character that the user types or pastes, as a Unicode code point; false refuses it. It may beep,
  /// but must not change any control.
  std::function<bool(char32_t character)> KeyPress;
  /// The user typed a character that the box refuses, whether or not it has room. For a box of one line.
  Handler Refused;
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
