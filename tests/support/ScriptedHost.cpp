#include "support/ScriptedHost.h"

namespace corvane::test {

ScriptedHost::~ScriptedHost() {
  const auto tellLeft = [](const auto& foreseen, const std::string& what) {
    for (const auto& one : foreseen) ADD_FAILURE() << "never came: " << what << one.first;
  };
  tellLeft(modals_, "");
  tellLeft(boxes_, "");
  tellLeft(files_, "a choice of a file");
  tellLeft(opened_, "a choice of a file to read");
  tellLeft(inputs_, "");
  tellLeft(prompts_, "a prompt for a connection");
  tellLeft(containers_, "a choice of a container");
  tellLeft(duringEvents_, "a time to serve events");
}

void ScriptedHost::Click(ui::MenuItem& item) {
  if (item.Menu != nullptr && item.Menu->Click) item.Menu->Click();
  Fire(item, item.Click);
}

void ScriptedHost::Press(ui::Toolbar& bar, const std::string& key) {
  if (!bar.Button(key).Enabled) ADD_FAILURE() << key << " is disabled";
  bar.ButtonClick(key);
}

void ScriptedHost::PressItem(ui::Toolbar& bar, const std::string& key, const std::string& item) {
  for (const ui::ToolItem& one : bar.Button(key).Items)
    if (one.Caption == item) return Fire(bar, one.Click);
  ADD_FAILURE() << key << " drops down no " << item;
}

void ScriptedHost::Choose(ui::OptionButton& option) {
  for (ui::Control* control : option.Parent().Controls())
    if (control->Kind() == ui::ControlKind::OptionButton && control->Name() == option.Name())
      static_cast<ui::OptionButton*>(control)->Value = control == &option;
  Fire(option, option.Click);
}

void ScriptedHost::Type(ui::TextBox& box, const std::string& text) {
  if (box.Locked) ADD_FAILURE() << box.Name() << " is locked";
  for (const char character : text) {
    if (box.KeyPress && !box.KeyPress(static_cast<unsigned char>(character))) {
      Fire(box, box.Refused);
      continue;
    }
    if (box.MaxLength > 0 && static_cast<int>(box.Text.size()) >= box.MaxLength) continue;
    box.Text += character;
    box.SelStart = static_cast<int>(box.Text.size());
    Fire(box, box.Change);
  }
  Fire(box, ui::Handler());
}

void ScriptedHost::Type(ui::ComboBox& box, const std::string& text) {
  if (!box.Editable) ADD_FAILURE() << box.Name() << " takes no text";
  box.SetText(text);
  Fire(box, box.Change);
}

void ScriptedHost::SelectOnly(ui::ListView& list, int row) {
  Focus(list);
  list.SelectNone();
  list.Select(row);
  Fire(list, list.ItemClick, row);
}

void ScriptedHost::ClickNode(ui::TreeView& tree, ui::NodeId node) {
  Focus(tree);
  tree.Select(node);
  Fire(tree, tree.NodeClick, node);
}

void ScriptedHost::EditLabel(ui::TreeView& tree, const std::string& text) {
  if (tree.EditedNode() == 0) ADD_FAILURE() << tree.Name() << " lets no text be changed";
  Fire(tree, ui::Handler([&] { tree.EndLabelEdit(text); }));
}

void ScriptedHost::ClickAt(ui::TextBox& box, int caret) {
  box.SelStart = caret;
  Fire(box, box.Click);
}

void ScriptedHost::Drop(ui::Control& source, ui::Control& target) {
  const auto& targets = source.DragTargets;
  if (std::find(targets.begin(), targets.end(), &target) == targets.end())
    ADD_FAILURE() << source.Name() << " cannot be dropped on " << target.Name();
  Fire(target, target.DragDrop);
}

// A timer ticks as often as its interval fits into the time that passes.
void ScriptedHost::Pass(int milliseconds) {
  const std::vector<ui::Form*> forms = shownForms_;
  for (ui::Form* form : forms) {
    if (form->IsUnloaded()) continue;
    for (ui::Control* control : form->Controls()) {
      const auto* timer = dynamic_cast<ui::Timer*>(control);
      for (int left = milliseconds; timer && timer->Enabled && timer->Interval > 0 && left >= timer->Interval;
           left -= timer->Interval)
        Fire(*timer, timer->Tick);
    }
  }
}

void ScriptedHost::ShowModal(ui::Form& form) {
  const auto script = Next(modals_, std::string(form.Name()));
  Show(form);
  if (script) (*script)(form);
  std::erase(shownForms_, &form);
  if (script && !form.IsUnloaded()) ADD_FAILURE() << form.Name() << " was left open";
}

void ScriptedHost::Show(ui::Form& form) {
  Shown.emplace_back(form.Name());
  shownForms_.push_back(&form);
}

ui::MsgResult ScriptedHost::MsgBox(const std::string& text, ui::MsgIcon icon, ui::MsgButtons buttons,
                                   const std::string& title) {
  Boxes.push_back({text, icon, buttons, title});
  if (ToAnyBox) return *ToAnyBox;
  return Next(boxes_, text).value_or(buttons == ui::MsgButtons::YesNo ? ui::MsgResult::No : ui::MsgResult::Cancel);
}

std::optional<std::string> ScriptedHost::SaveFile(const ui::SaveDialog& dialog) {
  SaveDialogs.push_back(dialog);
  return Next(files_, dialog.Title).value_or(std::nullopt);
}

std::string ScriptedHost::InputBox(const std::string& text, const std::string& title) {
  InputTexts.push_back(text);
  return Next(inputs_, title).value_or("");
}

std::optional<std::string> ScriptedHost::PromptConnection(const ui::ConnectionPrompt& prompt) {
  const auto script = Next(prompts_, "a prompt for a connection");
  return script ? (*script)(prompt) : std::nullopt;
}

void ScriptedHost::Post(std::function<void()> action) {
  const std::lock_guard lock(posting_);
  posted_.push_back(std::move(action));
}

void ScriptedHost::RunPosted() {
  std::vector<std::function<void()>> actions;
  {
    const std::lock_guard lock(posting_);
    actions.swap(posted_);
  }
  for (const auto& action : actions) action();
}

std::optional<std::string> ScriptedHost::OpenFile(const ui::OpenDialog& dialog) {
  OpenDialogs.push_back(dialog);
  return Next(opened_, dialog.Title).value_or(std::nullopt);
}

std::optional<DirectoryContainer> ScriptedHost::ChooseContainer(const std::string& title,
                                                                const DirectoryContainer& root,
                                                                const ui::ContainersOf& containersOf) {
  const auto script = Next(containers_, title);
  return script ? (*script)(root, containersOf) : std::nullopt;
}

void ScriptedHost::DoEvents() {
  ++EventsServed;
  if (!duringEvents_.empty()) (*Next(duringEvents_, ""))();
}

void ScriptedHost::Sleep(int milliseconds) {
  Slept.push_back(milliseconds);
  if (DuringSleep) DuringSleep();
}

}  // namespace corvane::test
