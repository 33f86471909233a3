#pragma once

#include "alarms/frmAlarmExport.h"
#include "alarms/frmAlarmImport.h"
#include "app/installation/TextFile.h"
#include "support/Cases.h"
#include "support/ConsoleTest.h"

namespace corvane::test {

/// A started console, and a file that alarms are written to and read from.
class ExchangeTest : public ConsoleTest {
 protected:
  ExchangeTest() { Console.Start(); }

  void Run(const std::string& file) { Console.Rows(ReadTextFile(CORVANE_SOURCE_DIR "/tests/alarms/" + file)); }
  void Choose(frmAlarmExport& form, const std::string& path = "C:\\Corvane\\alarms.ini") {
    form.Load();
    Host.OnSaveFile(path);
    Host.Click(form.cmdBrowse);
  }
  void Choose(frmAlarmImport& form) {
    form.Load();
    Host.OnOpenFile("C:\\Corvane\\alarms.ini");
    Host.Click(form.cmdBrowse);
  }
  /// Opens the branches of the keys and adds the last one.
  void Add(frmAlarmExport& form, const std::vector<std::string>& keys) {
    for (const std::string& key : keys) {
      const ui::NodeId node = form.tvAlarms.Find(key);
      if (node != 0 && key != keys.back()) Host.Open(form.tvAlarms, node);
      Host.ClickNode(form.tvAlarms, node);
    }
    Host.Click(form.cmdAdd);
  }
  void AddBundle(frmAlarmExport& form, int row) {
    Host.SelectOnly(form.lvwAlarmGroups, row);
    Host.Click(form.cmdAdd);
  }
  /// Presses the button; one message, and with success the form is gone.
  void Finish(ui::Form& form, ui::CommandButton& button, const std::string& message, const std::string& with = "") {
    OnMessage(message, with);
    Host.Click(button);
    EXPECT_EQ(with.empty(), form.IsUnloaded());
  }
  void Write(const std::string& bytes) { std::ofstream(File, std::ios::binary) << bytes; }

  const std::filesystem::path File = Console.Folder() / "alarms.ini";
  const std::vector<std::string> Disks{"OS\\2", "LOGTYPE\\2\\2", "ALARMCAT\\2\\Disks_2"};
};

}  // namespace corvane::test
