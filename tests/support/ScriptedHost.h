#pragma once

#include <algorithm>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/ui/Commands.h"
#include "platform/ui/Form.h"
#include "platform/ui/ListControls.h"
#include "platform/ui/ListView.h"
#include "platform/ui/SimpleControls.h"
#include "platform/ui/TreeView.h"
#include "platform/ui/UiHost.h"

namespace corvane::test {

/// A message box as the user saw it.
struct ShownBox {
  std::string Text;
  ui::MsgIcon Icon;
  ui::MsgButtons Buttons;
  std::string Title;
};

/// A host without a screen. A test foresees each modal form and each box; one that was not foreseen, and an answer that
/// is left over, fail the test. Time is virtual: timers and waits advance it, nobody waits for it.
class ScriptedHost : public ui::UiHost {
 public:
  ScriptedHost() { Title = "Corvane"; }
  ~ScriptedHost() override;

  /// The next modal form: its name, and what the user does on it. The form must be unloaded when the script ends.
  void OnModal(std::string name, std::function<void(ui::Form&)> script);
  /// The same with the form's own class.
  template <class T>
  void OnModal(std::string name, std::function<void(T&)> script) {
    OnModal(std::move(name), [script = std::move(script)](ui::Form& form) { script(dynamic_cast<T&>(form)); });
  }
  /// The next box: its whole text and the answer.
  void OnBox(std::string text, ui::MsgResult answer = ui::MsgResult::Ok);
  /// The next dialog that asks for a file's name, and the path that is given; nothing for Cancel.
  void OnSaveFile(std::optional<std::string> path) { files_.push_back(std::move(path)); }
  /// The next choice of a container: a script gets the root and the reader of its tree, and chooses.
  using ContainerScript = std::function<std::optional<ui::Container>(const ui::Container&, const ui::ContainersOf&)>;
  void OnChooseContainer(ContainerScript script) { containers_.push_back(std::move(script)); }
  /// What is run at the next call of `DoEvents`: the user acting meanwhile.
  void OnDoEvents(std::function<void()> action) { duringEvents_.push_back(std::move(action)); }

  // The user's acts. A control that is disabled or hidden fails the test.
  void Click(ui::CommandButton& button);
  void Click(ui::MenuItem& item);
  void Press(ui::Toolbar& bar, const std::string& key);
  void PressItem(ui::Toolbar& bar, const std::string& key, const std::string& item);
  void Click(ui::CheckBox& box);
  void Choose(ui::OptionButton& option);
  /// Types behind what stands in the box, character by character.
  void Type(ui::TextBox& box, const std::string& text);
  void Choose(ui::ComboBox& box, int index);
  void Type(ui::ComboBox& box, const std::string& text);
  void BringToFront(ui::TabControl& tabs, int tab);
  void Focus(ui::Control& control);
  void SelectOnly(ui::ListView& list, int row);
  void DoubleClick(ui::ListView& list, int row);
  void ClickNode(ui::TreeView& tree, ui::NodeId node);
  void Open(ui::TreeView& tree, ui::NodeId node);
  void Shut(ui::TreeView& tree, ui::NodeId node);
  void Drop(ui::Control& source, ui::Control& target);

  /// The form shown last.
  ui::Form& Top() { return *shownForms_.back(); }
  /// The one shown before it.
  ui::Form& Under() { return **(shownForms_.end() - 2); }

  /// Lets virtual time pass and runs the timers of shown forms that come due.
  void Pass(int milliseconds);

  void ShowModal(ui::Form& form) override;
  void Show(ui::Form& form) override;
  void Forget(const ui::Form& form) override;
  using UiHost::MsgBox;
  ui::MsgResult MsgBox(const std::string& text, ui::MsgIcon icon, ui::MsgButtons buttons,
                       const std::string& title) override;
  std::optional<std::string> SaveFile(const ui::SaveDialog& dialog) override;
  std::optional<ui::Container> ChooseContainer(const std::string& title, const ui::Container& root,
                                               const ui::ContainersOf& containersOf) override;
  void SetClipboardText(const std::string& text) override { Clipboard = text; }
  void Beep() override { ++Beeps; }
  void PopupMenu(ui::MenuItem& menu) override { Popups.push_back(&menu); }
  void SetFocus(ui::Control& control) override;
  void DoEvents() override;
  void Sleep(int milliseconds) override;
  void ShowHelp(int context) override { HelpTopics.push_back(context); }
  void CloseHelp() override { HelpTopics.clear(); }

  std::vector<ShownBox> Boxes;
  /// Names of all forms that were shown, modal or not, in order.
  std::vector<std::string> Shown;
  std::vector<int> Slept;
  /// What happens while the program sleeps.
  std::function<void()> DuringSleep;
  std::vector<int> HelpTopics;
  std::vector<ui::MenuItem*> Popups;
  std::vector<ui::SaveDialog> SaveDialogs;
  std::string Clipboard;
  int Beeps = 0;
  int EventsServed = 0;

 private:
  struct ExpectedModal {
    std::string Name;
    std::function<void(ui::Form&)> Script;
  };
  struct ExpectedBox {
    std::string Text;
    ui::MsgResult Answer;
  };

  static void Require(const ui::Control& control);
  void RunTimers(ui::Form& form, int milliseconds);

  std::deque<ExpectedModal> modals_;
  std::deque<ExpectedBox> boxes_;
  std::deque<std::optional<std::string>> files_;
  std::deque<ContainerScript> containers_;
  std::deque<std::function<void()>> duringEvents_;
  std::vector<ui::Form*> shownForms_;
};

}  // namespace corvane::test
