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
  void ChooseFile(frmAlarmExport& form, const std::string& path = Path) {
    Host.OnSaveFile(path);
    Host.Click(form.cmdBrowse);
  }
  void ChooseFile(frmAlarmImport& form) {
    Host.OnOpenFile(Path);
    Host.Click(form.cmdBrowse);
  }
  /// Opens the branches of the keys and adds the last one.
  void Add(frmAlarmExport& form, const std::vector<std::string>& keys) {
    for (const std::string& key : keys) {
      const ui::NodeId node = form.tvAlarms.Find(key);
      ASSERT_NE(0, node) << key;
      if (key != keys.back() && !form.tvAlarms.Node(node).Expanded) Host.Open(form.tvAlarms, node);
      Host.ClickNode(form.tvAlarms, node);
    }
    Host.Click(form.cmdAdd);
  }
  void AddBundle(frmAlarmExport& form, int row) {
    Host.SelectOnly(form.lvwAlarmGroups, row);
    Host.Click(form.cmdAdd);
  }
  void Export(frmAlarmExport& form) {
    OnMessage("Exported");
    Host.Click(form.cmdOK);
    EXPECT_TRUE(form.IsUnloaded());
  }
  std::filesystem::path File() const { return Console.Folder() / "alarms.ini"; }
  void Write(const std::string& bytes) { std::ofstream(File(), std::ios::binary) << bytes; }

  static constexpr const char* Path = "C:\\Corvane\\alarms.ini";
};

}  // namespace corvane::test
