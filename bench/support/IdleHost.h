#pragma once

#include <functional>

#include "platform/ui/UiHost.h"

namespace corvane::bench {

/// A host without a screen that does nothing by itself and never waits. A box is not foreseen and ends the program.
class IdleHost : public ui::UiHost {
 public:
  IdleHost() { Title = "Corvane"; }

  /// What the user does on the next modal forms; without it they are unloaded at once.
  std::function<void(ui::Form&)> OnModal;

  using UiHost::MsgBox;
  void ShowModal(ui::Form& form) override;
  void Show(ui::Form&) override {}
  void Forget(const ui::Form&) override {}
  ui::MsgResult MsgBox(const std::string& text, ui::MsgIcon icon, ui::MsgButtons buttons,
                       const std::string& title) override;
  std::optional<std::string> SaveFile(const ui::SaveDialog&) override { return std::nullopt; }
  std::optional<std::string> OpenFile(const ui::OpenDialog&) override { return std::nullopt; }
  std::optional<DirectoryContainer> ChooseContainer(const std::string&, const DirectoryContainer&,
                                                    const ui::ContainersOf&) override {
    return std::nullopt;
  }
  std::string InputBox(const std::string&, const std::string&) override { return {}; }
  std::optional<std::string> PromptConnection(const ui::ConnectionPrompt&) override { return std::nullopt; }
  void Repaint() override {}
  void Post(std::function<void()>) override {}
  void SetClipboardText(const std::string&) override {}
  void Beep() override {}
  void PopupMenu(ui::MenuItem&) override {}
  void SetFocus(ui::Control&) override {}
  void DoEvents() override {}
  void Sleep(int) override {}
  void ShowHelp(int) override {}
  void CloseHelp() override {}
};

}  // namespace corvane::bench
