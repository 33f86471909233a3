#pragma once

#include "platform/Launcher.h"

namespace corvane {

/// Starts programs of this machine, found by the `PATH` variable, as processes of their own: they outlive the console,
/// have no terminal and leave no dead child behind. Settings: none.
class LinuxLauncher : public Launcher {
 public:
  /// Raises 53 for a program that is not found, 70 for a file that may not be run, 75 for any other refusal.
  void Run(const std::string& commandLine) override;
};

}  // namespace corvane
