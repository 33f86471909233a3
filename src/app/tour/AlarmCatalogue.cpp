#include "app/tour/AlarmCatalogue.h"

#include <QPlainTextEdit>
#include <QTest>

#include "app/tour/Script.h"

namespace corvane::tour {
namespace {

constexpr const char* Main = "frmCVMain";
constexpr const char* Alarms = "frmAlarms";
constexpr const char* Information = "frmAlarmInformation";

QAbstractItemView& View(const char* form, const char* name) { return Driver::Find<QAbstractItemView>(form, name); }
QLineEdit& Line(const char* form, const char* name) { return Driver::Find<QLineEdit>(form, name); }

void RenameACategory(Script& script) {
  script.On(Main, [] { Driver::ClickTool(Main, "alarm"); });
  script.On(Alarms, [] {
    Driver::Pick(View(Alarms, "tvAlarms"), {"Windows 2000/XP/2003", "System", "Start and Shutdown"});
    Driver::Click(Alarms, "cmdEdit");
  });
  script.When(
      "the name of the category is being changed",
      [] { return View(Alarms, "tvAlarms").findChild<QLineEdit*>() != nullptr; },
      [] { View(Alarms, "tvAlarms").findChild<QLineEdit*>()->setText("Start, Restart and Shutdown"); });
  script.Picture(Alarms, "rename-a-category");
  script.On(Alarms, [] { QTest::keyClick(View(Alarms, "tvAlarms").findChild<QLineEdit*>(), Qt::Key_Return); });
}

void WriteAnAlarm(Script& script) {
  script.On(Alarms, [] {
    Driver::Pick(View(Alarms, "tvAlarms"),
                 {"Windows 2000/XP/2003", "System", "Disk and File System", "Disk Bad Block"});
  });
  script.Picture(Alarms, "define-alarms");
  script.On(Alarms, [] { Driver::Click(Alarms, "cmdAdd"); });
  script.On(Alarms, [] {
    Driver::Click(Alarms, "chkType_2");
    Driver::Type(Line(Alarms, "txtSource"), "Ftdisk");
    Driver::Type(Line(Alarms, "txtEventID"), "57");
    auto& description = Driver::Find<QPlainTextEdit>(Alarms, "txtEventDesc");
    QTest::keyClicks(&description, "failed to flush data");
    Driver::Click(Alarms, "cmdCRLF");
    Driver::Type(Line(Alarms, "txtThreshold"), "3");
    Driver::Type(Line(Alarms, "txtTimeout"), "600");
    Driver::Choose(Driver::Find<QComboBox>(Alarms, "lstSpecificNotification"), "Duty Desk Popup");
  });
  script.Picture(Alarms, "fields-of-an-alarm");
  script.On(Alarms, [] { Driver::Click(Alarms, "cmdSave"); });
  script.On(Information, [] {
    Driver::Type(Line(Information, "txtName"), "Delayed Write Lost");
    QTest::keyClicks(&Driver::Find<QPlainTextEdit>(Information, "txtDescription"),
                     "Data were lost on their way to a disk. Check cables and controller.");
  });
  script.Picture(Information, "alarm-information");
  script.On(Information, [] { Driver::Click(Information, "cmdOK"); });
  script.When(
      "the alarm is saved",
      [] { return Driver::Window(Information) == nullptr && View(Alarms, "tvAlarms").isVisible(); }, [] {});
  script.On(Alarms, [] { Driver::Click(Alarms, "cmdCancel"); });
}

}  // namespace

void AddAlarmCatalogue(Script& script) {
  RenameACategory(script);
  WriteAnAlarm(script);
  script.When(
      "the main window is in front", [] { return Driver::Window(Alarms) == nullptr; },
      [] { Driver::Window(Main)->close(); });
}

}  // namespace corvane::tour
