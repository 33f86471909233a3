#pragma once

#include "alarms/frmAlarmInformation.h"
#include "alarms/frmAlarms.h"
#include "app/installation/TextFile.h"
#include "core/ConfigDatabase.h"
#include "support/Cases.h"
#include "support/ConsoleTest.h"

namespace corvane::test {

/// The screen of the catalogue over a few categories and alarms.
class AlarmsScreenTest : public ConsoleTest {
 protected:
  AlarmsScreenTest() {
    Console.Rows(ReadTextFile(CORVANE_SOURCE_DIR "/tests/alarms/Catalogue.txt"));
    Main.InitGlobals();
    OpenConfigDatabase(Main);
    Form.Load();
    Form.Show();
  }

  /// Opens the branches above a node and clicks it.
  ui::NodeId Pick(const std::string& key) {
    for (const char* above : {"OS\\2", "LOGTYPE\\2\\2", "ALARMCAT\\2\\Disk Errors_2"})
      if (const ui::NodeId node = Form.tvAlarms.Find(above); node != 0 && !Form.tvAlarms.Node(node).Expanded)
        Host.Open(Form.tvAlarms, node);
    const ui::NodeId node = Form.tvAlarms.Find(key);
    EXPECT_NE(0, node) << key;
    Host.ClickNode(Form.tvAlarms, node);
    return node;
  }
  /// The rows of all alarms of a name, without their numbers.
  std::string Alarm(const std::string& name) {
    return Console.Rows(
        "SELECT Description, AlarmCategory, TypeMask, Source, Category, User, Computer, EventID, EventDescription, "
        "MatchEntireDescription, ThresholdCount, ThresholdTimeout, NotificationName FROM Alarms WHERE Name = '" +
        name + "'");
  }
  std::string Stamp() { return Console.Setting("LastDBUpdate"); }
  bool ShowsTree() { return Form.tvAlarms.Visible; }

  const std::string Disk = "ALARMCAT\\2\\Disk Errors_2", Full = "ALARM\\2\\Disk Errors_2\\Disk full";
  frmAlarms Form{Main};
};

}  // namespace corvane::test
