#pragma once

#include <gtest/gtest.h>

#include "adapters/qt/FormView.h"
#include "adapters/qt/QtHost.h"
#include "app/assembly/InstalledPlatform.h"
#include "app/installation/Installation.h"
#include "core/console/Console.h"
#include "support/TempFolder.h"

namespace corvane::test {

/// A console on a fresh installation, started with its real windows.
class StartedConsole : public testing::Test {
 protected:
  StartedConsole() { App.Main(); }

  modMain& State() { return App.State(); }
  frmCVMain& Main() { return App.MainWindow(); }
  QWidget& Window(const ui::Form& form) { return Host.ViewOf(form)->Window(); }

  TempFolder Place;
  std::filesystem::path Folder = Place.Path() / "installation";
  qt::QtHost Host{qt::FormRegistry::Console(), CORVANE_SOURCE_DIR "/data/help"};
  InstalledPlatform Installed{
      (Installation(CORVANE_SOURCE_DIR "/data").LayOut(Folder, Installation::Kind::Lab), Folder), Host};
  Console App{Installed.Ports()};
};

}  // namespace corvane::test
