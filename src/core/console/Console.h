#pragma once

#include <memory>

#include "core/console/frmCVMain.h"
#include "core/console/frmStartup.h"
#include "core/modMain.h"
#include "notifications/cvbTAPI.h"

namespace corvane {

/// One run of the console: its shared state and its main window.
class Console {
 public:
  explicit Console(Platform& platform);
  ~Console();

  /// The start: takes the installation, opens the database, fills the lists and shows the main window. Returns at once
  /// when another console runs already; `Started` tells. Nothing here traps a failure.
  void Main();
  bool Started() const { return mainWindow_ != nullptr; }

  modMain& State() { return main_; }
  frmCVMain& MainWindow() { return *mainWindow_; }

 private:
  bool IsFirstRun() const;
  void RegisterEventSource();
  void MakeNetworkObjects();
  void ShowSplashStage(const char* caption);
  void RunFirstRunChain();
  void FillDomains();
  void CheckRapidConfigSetting() const;

  modMain main_;
  /// The one telephone of the run.
  std::unique_ptr<cvbTAPI> pager_;
  std::unique_ptr<frmCVMain> mainWindow_;
  std::unique_ptr<frmStartup> splash_;
};

}  // namespace corvane
