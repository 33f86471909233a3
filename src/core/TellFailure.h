#pragma once

#include <utility>

#include "core/modMain.h"
#include "platform/RuntimeError.h"
#include "platform/ui/UiHost.h"

namespace corvane {

/// Runs what the user asked for. A failure is told by number and description, and what was done before it stays. True
/// when nothing failed.
template <class Action>
bool TellFailure(modMain& main, Action&& action) {
  try {
    std::forward<Action>(action)();
    return true;
  } catch (const RuntimeError& error) {
    main.Ui.MsgBox("The following error has occured:  " + std::to_string(error.Number) + "\n" + error.Description,
                   ui::MsgIcon::Exclamation);
    return false;
  }
}

}  // namespace corvane
