#pragma once

#include <fstream>

#include "alarms/frmAlarmExport.h"
#include "alarms/frmAlarmImport.h"
#include "app/assembly/InstalledPlatform.h"
#include "app/installation/Installation.h"
#include "core/console/Console.h"
#include "support/ScriptedHost.h"
#include "support/TempFolder.h"

namespace corvane::fuzz {

/// A started console whose user chooses the one file and agrees to everything.
class ExchangeDesk {
 public:
  ExchangeDesk() { app_.Main(); }

  modMain& State() { return app_.State(); }
  void Write(const std::string& bytes) { std::ofstream(folder_ / "a.ini", std::ios::binary) << bytes; }
  /// Does the work and takes back what it has changed in the database.
  void Try(const std::function<void()>& work) {
    State().ConfigConnection->BeginTrans();
    work();
    State().ConfigConnection->RollbackTrans();
  }

 private:
  struct User : test::ScriptedHost {
    ui::MsgResult MsgBox(const std::string&, ui::MsgIcon, ui::MsgButtons, const std::string&) override {
      return ui::MsgResult::Yes;
    }
    std::optional<std::string> SaveFile(const ui::SaveDialog&) override { return "C:\\Corvane\\a.ini"; }
    std::optional<std::string> OpenFile(const ui::OpenDialog&) override { return "C:\\Corvane\\a.ini"; }
  };

  test::TempFolder place_;
  std::filesystem::path folder_ = place_.Path() / "installation";
  User user_;
  InstalledPlatform installed_{
      (Installation(CORVANE_SOURCE_DIR "/data").LayOut(folder_, Installation::Kind::Lab), folder_), user_};
  Console app_{installed_.Ports()};
};

}  // namespace corvane::fuzz
