#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <functional>
#include <mutex>
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

  /// The next modal form: its name, and what the user does on it, which may ask for the form's own class. The form must
  /// be unloaded when the script ends.
  template <class T = ui::Form>
  void OnModal(const std::string& name, std::type_identity_t<std::function<void(T&)>> script) {
    modals_.emplace_back(name, [script = std::move(script)](ui::Form& form) { script(dynamic_cast<T&>(form)); });
  }
  /// The next box: its whole text and the answer.
  void OnBox(std::string text, ui::MsgResult answer = ui::MsgResult::Ok) { boxes_.emplace_back(text, answer); }
  /// The next dialog that asks for a file's name, and the path that is given; nothing for Cancel.
  void OnSaveFile(std::optional<std::string> path) { files_.emplace_back("", std::move(path)); }
  /// The next box that asks for a text: its title and the answer; an empty one for Cancel.
  void OnInputBox(std::string title, std::string answer) { inputs_.emplace_back(title, std::move(answer)); }
  /// The next prompt for a connection: what the user does with it, and the string that comes of it.
  using PromptScript = std::function<std::optional<std::string>(const ui::ConnectionPrompt&)>;
  void OnPromptConnection(PromptScript script) { prompts_.emplace_back("", std::move(script)); }
  /// Runs what was posted since the last time.
  void RunPosted();
  /// The same for a file to read.
  void OnOpenFile(std::optional<std::string> path) { opened_.emplace_back("", std::move(path)); }
  /// The next choice of a container: a script gets the root and the reader of its tree, and chooses.
  using ContainerScript =
      std::function<std::optional<DirectoryContainer>(const DirectoryContainer&, const ui::ContainersOf&)>;
  void OnChooseContainer(ContainerScript script) { containers_.emplace_back("", std::move(script)); }
  /// What is run at the next call of `DoEvents`: the user acting meanwhile.
  void OnDoEvents(std::function<void()> action) { duringEvents_.emplace_back("", std::move(action)); }

  // The user's acts. A control that is disabled or hidden fails the test.
  void Click(ui::CommandButton& button) { Fire(button, button.Click); }
  void Click(ui::MenuItem& item);
  void Press(ui::Toolbar& bar, const std::string& key);
  void PressItem(ui::Toolbar& bar, const std::string& key, const std::string& item);
  void Click(ui::CheckBox& box) {
    box.Value = !box.Value;
    Fire(box, box.Click);
  }
  void Choose(ui::OptionButton& option);
  /// Types behind what stands in the box, character by character.
  void Type(ui::TextBox& box, const std::string& text);
  void Choose(ui::ComboBox& box, int index) {
    box.SetListIndex(index);
    Fire(box, box.Click);
  }
  void Type(ui::ComboBox& box, const std::string& text);
  void BringToFront(ui::TabControl& tabs, int tab) {
    tabs.Tab = tab;
    Fire(tabs, tabs.Click);
  }
  void Focus(ui::Control& control) { Fire(control, control.GotFocus); }
  void SelectOnly(ui::ListView& list, int row);
  void DoubleClick(ui::ListView& list, int row) {
    SelectOnly(list, row);
    Fire(list, list.DblClick);
  }
  void ClickNode(ui::TreeView& tree, ui::NodeId node);
  void Open(ui::TreeView& tree, ui::NodeId node) {
    tree.SetExpanded(node, true);
    Fire(tree, tree.Expand, node);
  }
  void Shut(ui::TreeView& tree, ui::NodeId node) {
    tree.SetExpanded(node, false);
    Fire(tree, tree.Collapse, node);
  }
  /// Changes the text of the node whose text may be changed now.
  void EditLabel(ui::TreeView& tree, const std::string& text);
  void DoubleClick(ui::TreeView& tree, ui::NodeId node) {
    ClickNode(tree, node);
    Fire(tree, tree.DblClick);
  }
  /// Puts the caret into a text box by a click.
  void ClickAt(ui::TextBox& box, int caret);
  void Drop(ui::Control& source, ui::Control& target);

  /// The form shown last.
  ui::Form& Top() { return *shownForms_.back(); }
  /// The one shown before it.
  ui::Form& Under() { return **(shownForms_.end() - 2); }

  /// Lets virtual time pass and runs the timers of shown forms that come due.
  void Pass(int milliseconds);

  void ShowModal(ui::Form& form) override;
  void Show(ui::Form& form) override;
  void Forget(const ui::Form& form) override { std::erase(shownForms_, &form); }
  using UiHost::MsgBox;
  ui::MsgResult MsgBox(const std::string& text, ui::MsgIcon icon, ui::MsgButtons buttons,
                       const std::string& title) override;
  std::optional<std::string> SaveFile(const ui::SaveDialog& dialog) override;
  std::optional<std::string> OpenFile(const ui::OpenDialog& dialog) override;
  std::optional<DirectoryContainer> ChooseContainer(const std::string& title, const DirectoryContainer& root,
                                                    const ui::ContainersOf& containersOf) override;
  std::string InputBox(const std::string& text, const std::string& title) override;
  std::optional<std::string> PromptConnection(const ui::ConnectionPrompt& prompt) override;
  void Repaint() override {}
  void Post(std::function<void()> action) override;
  void SetClipboardText(const std::string& text) override { Clipboard = text; }
  void Beep() override { ++Beeps; }
  void PopupMenu(ui::MenuItem& menu) override { Popups.push_back(&menu); }
  void SetFocus(ui::Control& control) override { Focus(control); }
  void DoEvents() override;
  void Sleep(int milliseconds) override;
  void ShowHelp(int context) override { HelpTopics.push_back(context); }
  void CloseHelp() override { HelpTopics.clear(); }

  std::vector<ShownBox> Boxes;
  /// The answer to every box where a test foresees none.
  std::optional<ui::MsgResult> ToAnyBox;
  /// Names of all forms that were shown, modal or not, in order.
  std::vector<std::string> Shown;
  std::vector<int> Slept;
  /// What happens while the program sleeps.
  std::function<void()> DuringSleep;
  std::vector<int> HelpTopics;
  std::vector<ui::MenuItem*> Popups;
  std::vector<ui::SaveDialog> SaveDialogs;
  std::vector<ui::OpenDialog> OpenDialogs;
  /// The texts of the boxes that asked for one.
  std::vector<std::string> InputTexts;
  std::string Clipboard;
  int Beeps = 0;
  int EventsServed = 0;

 private:
  /// What a test foresees, in order: the name or text that is shown, empty where any will do, and the answer to it.
  template <class Answer>
  using Foreseen = std::deque<std::pair<std::string, Answer>>;

  template <class Answer>
  static std::optional<Answer> Next(Foreseen<Answer>& foreseen, const std::string& shown) {
    if (foreseen.empty() || (!foreseen.front().first.empty() && foreseen.front().first != shown)) {
      ADD_FAILURE() << "not foreseen: " << shown;
      return std::nullopt;
    }
    const Answer answer = std::move(foreseen.front().second);
    foreseen.pop_front();
    return answer;
  }

  /// Runs a handler of a control that the user can reach.
  template <class Handler, class... Arguments>
  static void Fire(const ui::Control& control, const Handler& handler, Arguments... arguments) {
    if (!control.Enabled || !control.Visible) ADD_FAILURE() << control.Name() << " is disabled or hidden";
    if (handler) handler(arguments...);
  }

  Foreseen<std::function<void(ui::Form&)>> modals_;
  Foreseen<ui::MsgResult> boxes_;
  Foreseen<std::optional<std::string>> files_, opened_;
  Foreseen<std::string> inputs_;
  Foreseen<PromptScript> prompts_;
  std::mutex posting_;
  std::vector<std::function<void()>> posted_;
  Foreseen<ContainerScript> containers_;
  Foreseen<std::function<void()>> duringEvents_;
  std::vector<ui::Form*> shownForms_;
};

}  // namespace corvane::test
