#pragma once

#include <functional>
#include <string>

#include "platform/ui/Control.h"

namespace corvane::ui {

class Form;
struct MenuItem;

enum class MsgIcon { Exclamation, Information, Question };
enum class MsgButtons { Ok, OkCancel, YesNo };
enum class MsgResult { Ok, Cancel, Yes, No };

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

  /// Opens a menu at the pointer and runs what is chosen.
  virtual void PopupMenu(MenuItem& menu) = 0;
  virtual void SetFocus(Control& control) = 0;

  /// Serves pending window events, input included. May be called often: it acts at most every 10 ms.
  virtual void DoEvents() = 0;
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
