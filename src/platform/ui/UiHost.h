#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/DirectoryProvider.h"
#include "platform/ui/Control.h"

namespace corvane::ui {

class Form;
struct MenuItem;

enum class MsgIcon { Exclamation, Information, Question };
enum class MsgButtons { Ok, OkCancel, YesNo };
enum class MsgResult { Ok, Cancel, Yes, No };

/// What a dialog asks for that chooses the name of a file to write.
struct SaveDialog {
  std::string Title;
  /// Such as "HTML files (*.htm)" and "*.htm".
  std::string Filter, Pattern;
  /// The name offered.
  std::string FileName;
};

/// What a dialog asks for that chooses a file to read.
struct OpenDialog {
  std::string Title;
  /// Such as "HTML files (*.htm)".
  std::string Filter;
  /// A name that no file has yet may be typed, too.
  bool MayBeNew = false;
};

/// What the prompt for a connection offers, and how it tries one out.
struct ConnectionPrompt {
  std::vector<std::string> Drivers, DataSources;
  /// Opens a connection by its string; empty when that went well, else what is wrong.
  std::function<std::string(const std::string& connectionString)> Test;
};

/// The containers directly within that of a path. Raises when they cannot be read.
using ContainersOf = std::function<std::vector<DirectoryContainer>(const std::string& path)>;

/// Thrown by `EndProgram` through every handler and loop up to the program's start. It is no error and derives from
/// nothing, so that code which passes over errors does not stop it.
struct ProgramEnd {
  int ExitCode = 0;
};

/// What carries forms to the user. It compares each shown form with its window after every handler, before every modal
/// screen and box, and in `DoEvents`. An error out of a handler ends every loop and is raised again from `ShowModal`.
class UiHost {
 public:
  virtual ~UiHost() = default;

  /// The program's title: the default title of boxes, and what dialogs name the program by.
  std::string Title;

  /// Shows a loaded form above all others and returns when it is unloaded.
  virtual void ShowModal(Form& form) = 0;
  /// Shows a loaded form and returns. The form stays alive until it is unloaded.
  virtual void Show(Form& form) = 0;
  /// A form that was shown dies: its window goes with it, and no handler of it is run any more. Its controls are gone.
  virtual void Forget(const Form& form) = 0;

  /// Shows a message box with the title of the program.
  MsgResult MsgBox(const std::string& text, MsgIcon icon, MsgButtons buttons = MsgButtons::Ok) {
    return MsgBox(text, icon, buttons, Title);
  }
  virtual MsgResult MsgBox(const std::string& text, MsgIcon icon, MsgButtons buttons, const std::string& title) = 0;

  /// Asks where to write a file. The path, with `\\` as separator, or nothing when the user cancels; replacing a file
  /// that is there has been agreed to.
  virtual std::optional<std::string> SaveFile(const SaveDialog& dialog) = 0;
  /// Asks for a file to read. The path of one that is there, with `\\` as separator, or nothing when the user cancels.
  virtual std::optional<std::string> OpenFile(const OpenDialog& dialog) = 0;
  /// Asks for one line of text. Empty when the user cancels.
  virtual std::string InputBox(const std::string& text, const std::string& title) = 0;
  /// Lets the user put a connection string together from a driver or a data source. Nothing when the user cancels.
  virtual std::optional<std::string> PromptConnection(const ConnectionPrompt& prompt) = 0;
  /// Lets the user choose a container below `root`, whose tree is read as its branches are opened. Nothing when the
  /// user cancels. What cannot be read is told in the dialog.
  virtual std::optional<DirectoryContainer> ChooseContainer(const std::string& title, const DirectoryContainer& root,
                                                            const ContainersOf& containersOf) = 0;
  virtual void SetClipboardText(const std::string& text) = 0;
  virtual void Beep() = 0;
  /// Opens a menu at the pointer and runs what is chosen.
  virtual void PopupMenu(MenuItem& menu) = 0;
  virtual void SetFocus(Control& control) = 0;

  /// Serves pending window events, input included. May be called often: it acts at most every 10 ms.
  virtual void DoEvents() = 0;
  /// Shows what has changed and paints, without serving input. May be called often: it acts at most every 10 ms.
  virtual void Repaint() = 0;
  /// Runs this on the program's one thread as soon as a loop serves events. May be called from any thread.
  virtual void Post(std::function<void()> action) = 0;
  /// Waits without serving input.
  virtual void Sleep(int milliseconds) = 0;

  /// Shows a help topic by its context number; 0 is the contents page.
  virtual void ShowHelp(int context) = 0;
  /// Closes the help window where one is open.
  virtual void CloseHelp() = 0;

  /// Ends every loop with no further handler run. Never returns.
  [[noreturn]] void EndProgram(int exitCode = 0) { throw ProgramEnd{exitCode}; }
};

}  // namespace corvane::ui
