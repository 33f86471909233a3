#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::ui {

class Form;

/// What a control does when the user acts on it. Assigning to a field never runs one.
using Handler = std::function<void()>;

enum class ControlKind {
  Label,
  CommandButton,
  Frame,
  Image,
  CheckBox,
  OptionButton,
  TextBox,
  ComboBox,
  ListBox,
  ListView,
  TreeView,
  ProgressBar,
  TabControl,
  Toolbar,
  StatusBar,
  MenuItem,
  Timer
};

enum class Pointer { Default = 0, Hourglass = 11 };

/// A text within a caption that has no mnemonic of its own: each `&` doubled.
std::string Literal(std::string_view text);

/// A part of a form: plain fields that hold what is shown, and handlers that the host fires. A control adds itself to
/// its form when it is made, so the order of declaration is the tab order.
class Control {
 public:
  Control(Form& form, std::string_view name, ControlKind kind);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  ControlKind Kind() const { return kind_; }
  /// The control's name, a literal that outlives it.
  std::string_view Name() const { return name_; }
  Form& Parent() const { return form_; }

  bool Enabled = true;
  bool Visible = true;
  /// Place in an array of controls of one name; -1 for a single control.
  int Index = -1;
  Pointer MousePointer = Pointer::Default;
  /// Share of the space within its row, in the form's own units; 0 leaves it to the layout.
  int Width = 0;
  std::string ToolTip;

  Handler GotFocus;
  /// The pointer moved over the control with no button held.
  Handler MouseMove;
  /// Something dragged from a control that names this one among its `DragTargets` was dropped here.
  Handler DragDrop;
  std::vector<Control*> DragTargets;

 private:
  Form& form_;
  std::string_view name_;
  ControlKind kind_;
};

/// Shows and enables controls that make up one face of a form, or hides and disables them.
void ShowFace(const std::vector<Control*>& controls, bool shown);

}  // namespace corvane::ui
