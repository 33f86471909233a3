#pragma once

#include <string>
#include <vector>

#include "support/Cases.h"

namespace corvane::test {

/// A command of the main window and the ways to it: its key of the toolbar, its menu items by name. `Form` is the
/// screen that it opens; empty for one that acts by itself.
struct Command {
  std::string Key;
  std::string Form;
  std::vector<std::string> Items;

  bool IsForSyslogs() const { return Form == "frmSyslogDevice"; }
};

/// Every command there is. A screen that comes in adds its line.
inline const std::vector<Command> Switchboard = [] {
  std::vector<Command> commands;
  for (const auto& one : Cases("support/Switchboard.txt"))
    commands.push_back({one[0], one[1], {one.begin() + 2, one.end()}});
  return commands;
}();

}  // namespace corvane::test
