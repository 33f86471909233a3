#pragma once

#include <QElapsedTimer>
#include <QImage>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "adapters/qt/Dispatcher.h"
#include "adapters/qt/FormRegistry.h"
#include "platform/ui/UiHost.h"

class QDialog;
class QFileDialog;

namespace corvane::qt {

class FormView;
class HelpWindow;

/// The face of the console: it shows forms as windows. Needs a QApplication that outlives it.
class QtHost : public ui::UiHost {
 public:
  /// `helpFolder` holds the help pages.
  QtHost(FormRegistry forms, std::string helpFolder);
  ~QtHost() override;

  /// Serves events until the program is ended or the last window is gone. Gives the exit code; raises the error of a
  /// handler.
  int Run();

  void ShowModal(ui::Form& form) override;
  void Show(ui::Form& form) override;
  void Forget(const ui::Form& form) override;
  using UiHost::MsgBox;
  ui::MsgResult MsgBox(const std::string& text, ui::MsgIcon icon, ui::MsgButtons buttons,
                       const std::string& title) override;
  std::optional<std::string> SaveFile(const ui::SaveDialog& dialog) override;
  std::optional<std::string> OpenFile(const ui::OpenDialog& dialog) override;
  std::string InputBox(const std::string& text, const std::string& title) override;
  std::optional<std::string> PromptConnection(const ui::ConnectionPrompt& prompt) override;
  std::optional<DirectoryContainer> ChooseContainer(const std::string& title, const DirectoryContainer& root,
                                                    const ui::ContainersOf& containersOf) override;
  void SetClipboardText(const std::string& text) override;
  void Beep() override;
  void PopupMenu(ui::MenuItem& menu) override;
  void SetFocus(ui::Control& control) override;
  void DoEvents() override;
  void Repaint() override;
  void Post(std::function<void()> action) override;
  void Sleep(int milliseconds) override;
  void ShowHelp(int context) override;
  void CloseHelp() override;

  /// The window of a shown form as it looks now; an empty image for one that is not shown.
  QImage Picture(const ui::Form& form);
  /// Writes that picture as PNG; false when there is none or it cannot be written.
  bool SavePicture(const ui::Form& form, const std::string& path);

  /// The view of a shown form; null for one that is not shown.
  FormView* ViewOf(const ui::Form& form) const;

 private:
  FormView& Open(ui::Form& form, bool modal);
  QWidget* Opener() const;
  void RunDialog(QDialog& dialog);
  std::optional<std::string> ChosenFile(QFileDialog& chooser);
  void Flush();
  void Retire(FormView& view);
  void ClearRetired();
  void Reactivate();

  FormRegistry forms_;
  std::string helpFolder_;
  Dispatcher dispatcher_;
  std::vector<std::unique_ptr<FormView>> views_;
  /// Views that are closed while one of their own events may still be under way.
  std::vector<std::unique_ptr<FormView>> retired_;
  QTimer clearing_;
  std::unique_ptr<HelpWindow> help_;
  QEventLoop* main_ = nullptr;
  QElapsedTimer sinceEvents_;
};

}  // namespace corvane::qt
