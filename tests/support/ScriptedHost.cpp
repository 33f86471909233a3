#include "support/ScriptedHost.h"

#include <gtest/gtest.h>

#include "platform/ui/Commands.h"

namespace corvane::test {
namespace {

void Run(const ui::Handler& handler) {
  if (handler) handler();
}

}  // namespace

ScriptedHost::~ScriptedHost() {
  for (const ExpectedModal& modal : modals_) ADD_FAILURE() << "never shown: " << modal.Name;
  for (const ExpectedBox& box : boxes_) ADD_FAILURE() << "never shown: " << box.Text;
  if (!files_.empty() || !containers_.empty()) ADD_FAILURE() << "a dialog was never shown";
  if (!duringEvents_.empty()) ADD_FAILURE() << "events were not served as often as foreseen";
}

void ScriptedHost::OnModal(std::string name, std::function<void(ui::Form&)> script) {
  modals_.push_back({std::move(name), std::move(script)});
}

void ScriptedHost::OnBox(std::string text, ui::MsgResult answer) { boxes_.push_back({std::move(text), answer}); }

void ScriptedHost::Require(const ui::Control& control) {
  if (!control.Enabled || !control.Visible)
    ADD_FAILURE() << control.Name() << (control.Enabled ? " is hidden" : " is disabled");
}

void ScriptedHost::Click(ui::CommandButton& button) {
  Require(button);
  Run(button.Click);
}

void ScriptedHost::Click(ui::MenuItem& item) {
  if (item.Menu != nullptr) Run(item.Menu->Click);
  Require(item);
  Run(item.Click);
}

void ScriptedHost::Press(ui::Toolbar& bar, const std::string& key) {
  if (!bar.Button(key).Enabled) ADD_FAILURE() << key << " is disabled";
  bar.ButtonClick(key);
}

void ScriptedHost::PressItem(ui::Toolbar& bar, const std::string& key, const std::string& item) {
  for (const ui::ToolItem& one : bar.Button(key).Items)
    if (one.Caption == item) return Run(one.Click);
  ADD_FAILURE() << key << " drops down no " << item;
}

void ScriptedHost::Click(ui::CheckBox& box) {
  Require(box);
  box.Value = !box.Value;
  Run(box.Click);
}

void ScriptedHost::Choose(ui::OptionButton& option) {
  Require(option);
  for (ui::Control* control : option.Parent().Controls())
    if (control->Kind() == ui::ControlKind::OptionButton && control->Name() == option.Name())
      static_cast<ui::OptionButton*>(control)->Value = control == &option;
  Run(option.Click);
}

void ScriptedHost::Type(ui::TextBox& box, const std::string& text) {
  Require(box);
  if (box.Locked) ADD_FAILURE() << box.Name() << " is locked";
  for (const char character : text)
    if (!box.KeyPress || box.KeyPress(static_cast<unsigned char>(character))) box.Text += character;
}

void ScriptedHost::Choose(ui::ComboBox& box, int index) {
  Require(box);
  box.SetListIndex(index);
  Run(box.Click);
}

void ScriptedHost::Type(ui::ComboBox& box, const std::string& text) {
  Require(box);
  if (!box.Editable) ADD_FAILURE() << box.Name() << " takes no text";
  box.SetText(text);
  Run(box.Change);
}

void ScriptedHost::BringToFront(ui::TabControl& tabs, int tab) {
  tabs.Tab = tab;
  Run(tabs.Click);
}

void ScriptedHost::Focus(ui::Control& control) {
  Require(control);
  Run(control.GotFocus);
}

void ScriptedHost::SelectOnly(ui::ListView& list, int row) {
  Focus(list);
  list.SelectNone();
  list.Select(row);
  if (list.ItemClick) list.ItemClick(row);
}

void ScriptedHost::DoubleClick(ui::ListView& list, int row) {
  SelectOnly(list, row);
  Run(list.DblClick);
}

void ScriptedHost::ClickNode(ui::TreeView& tree, ui::NodeId node) {
  Focus(tree);
  tree.Select(node);
  if (tree.NodeClick) tree.NodeClick(node);
}

void ScriptedHost::Open(ui::TreeView& tree, ui::NodeId node) {
  tree.SetExpanded(node, true);
  if (tree.Expand) tree.Expand(node);
}

void ScriptedHost::Shut(ui::TreeView& tree, ui::NodeId node) {
  tree.SetExpanded(node, false);
  if (tree.Collapse) tree.Collapse(node);
}

void ScriptedHost::Drop(ui::Control& source, ui::Control& target) {
  const auto& targets = source.DragTargets;
  if (std::find(targets.begin(), targets.end(), &target) == targets.end())
    ADD_FAILURE() << source.Name() << " cannot be dropped on " << target.Name();
  Run(target.DragDrop);
}

void ScriptedHost::Pass(int milliseconds) {
  const std::vector<ui::Form*> forms = shownForms_;
  for (ui::Form* form : forms)
    if (!form->IsUnloaded()) RunTimers(*form, milliseconds);
}

// A timer ticks as often as its interval fits into the time that passes.
void ScriptedHost::RunTimers(ui::Form& form, int milliseconds) {
  for (ui::Control* control : form.Controls()) {
    if (control->Kind() != ui::ControlKind::Timer) continue;
    auto* timer = static_cast<ui::Timer*>(control);
    for (int left = milliseconds; timer->Enabled && timer->Interval > 0 && left >= timer->Interval;
         left -= timer->Interval)
      Run(timer->Tick);
  }
}

void ScriptedHost::ShowModal(ui::Form& form) {
  Shown.emplace_back(form.Name());
  if (modals_.empty() || modals_.front().Name != form.Name()) {
    ADD_FAILURE() << "not foreseen: " << form.Name();
    return;
  }
  const auto script = std::move(modals_.front().Script);
  modals_.pop_front();
  shownForms_.push_back(&form);
  script(form);
  std::erase(shownForms_, &form);
  if (!form.IsUnloaded()) ADD_FAILURE() << form.Name() << " was left open";
}

void ScriptedHost::Show(ui::Form& form) {
  Shown.emplace_back(form.Name());
  shownForms_.push_back(&form);
}

void ScriptedHost::Forget(const ui::Form& form) {
  std::erase_if(shownForms_, [&](const ui::Form* shown) { return shown == &form; });
}

ui::MsgResult ScriptedHost::MsgBox(const std::string& text, ui::MsgIcon icon, ui::MsgButtons buttons,
                                   const std::string& title) {
  Boxes.push_back({text, icon, buttons, title});
  if (boxes_.empty() || boxes_.front().Text != text) {
    ADD_FAILURE() << "not foreseen: " << text;
    return buttons == ui::MsgButtons::YesNo ? ui::MsgResult::No : ui::MsgResult::Cancel;
  }
  const ui::MsgResult answer = boxes_.front().Answer;
  boxes_.pop_front();
  return answer;
}

std::optional<std::string> ScriptedHost::SaveFile(const ui::SaveDialog& dialog) {
  SaveDialogs.push_back(dialog);
  if (files_.empty()) {
    ADD_FAILURE() << "not foreseen: " << dialog.Title;
    return std::nullopt;
  }
  const auto path = files_.front();
  files_.pop_front();
  return path;
}

std::optional<ui::Container> ScriptedHost::ChooseContainer(const std::string& title, const ui::Container& root,
                                                           const ui::ContainersOf& containersOf) {
  if (containers_.empty()) {
    ADD_FAILURE() << "not foreseen: " << title;
    return std::nullopt;
  }
  const auto script = std::move(containers_.front());
  containers_.pop_front();
  return script(root, containersOf);
}

void ScriptedHost::SetFocus(ui::Control& control) { Focus(control); }

void ScriptedHost::DoEvents() {
  ++EventsServed;
  if (duringEvents_.empty()) return;
  const auto action = std::move(duringEvents_.front());
  duringEvents_.pop_front();
  action();
}

void ScriptedHost::Sleep(int milliseconds) {
  Slept.push_back(milliseconds);
  if (DuringSleep) DuringSleep();
}

}  // namespace corvane::test
