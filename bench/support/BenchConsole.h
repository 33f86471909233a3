#pragma once

#include <filesystem>

#include "app/assembly/InstalledPlatform.h"
#include "core/console/Console.h"

namespace corvane::bench {

/// A console on an installation, with everything behind it real.
class BenchConsole {
 public:
  BenchConsole(const std::filesystem::path& installation, ui::UiHost& host) : platform_(installation, host) {}

  frmCVMain& Window() { return App.MainWindow(); }

 private:
  InstalledPlatform platform_;

 public:
  Console App{platform_.Ports()};
};

}  // namespace corvane::bench
