#include "app/tour/MainJob.h"

#include <QLabel>

#include "app/tour/Script.h"

namespace corvane::tour {
namespace {

constexpr const char* Main = "frmCVMain";
constexpr const char* Editor = "frmLogEdit";

QAbstractItemView& View(const char* form, const char* name) { return Driver::Find<QAbstractItemView>(form, name); }

void Require(const QString& is, const QString& expected, const char* what) {
  if (is != expected)
    throw Failure(std::string(what) + " is \"" + is.toStdString() + "\" and not \"" + expected.toStdString() + "\"");
}

bool EditorIsLoaded() {
  return Driver::Window(Editor) != nullptr &&
         !Driver::Find<QComboBox>(Editor, "lstComputerName").currentText().isEmpty() &&
         !Driver::Find<QLabel>(Editor, "lblWait").isVisible();
}

void Start(Script& script) {
  script.Picture("frmStartup", "splash");
  script.Picture(Main, "main-window-empty");
  script.On(Main, [] { Driver::Choose(Driver::Find<QComboBox>(Main, "lstDomain"), "HARBOR"); });
  script.On(Main, [] { Driver::Choose(Driver::Find<QComboBox>(Main, "lstDomain"), "MERIDIAN"); });
}

void ChooseComputerAndLog(Script& script) {
  script.On(Main, [] { Driver::ClickTool(Main, "add"); });
  script.When("the editor is loaded", EditorIsLoaded, [] {
    Driver::Type(Driver::Find<QComboBox>(Editor, "lstComputerName"), "MERFILE01");
    Driver::Choose(Driver::Find<QComboBox>(Editor, "lstLogType"), "System");
  });
  script.Picture(Editor, "choose-computer-and-log");
}

void ChooseAlarms(Script& script) {
  script.On(Editor, [] { Driver::BringToFront(Editor, 2); });
  script.On(Editor, [] {
    QAbstractItemView& tree = View(Editor, "tvAlarms");
    const QModelIndex alarm =
        Driver::Pick(tree, {"Windows 2000/XP/2003", "System", "Disk and File System", "Disk Bad Block"});
    Driver::Drag(tree, alarm, View(Editor, "tvSelectedAlarms"));
    Driver::Pick(View(Editor, "lvwAlarmGroups"), {"Services and Shutdowns"});
    Driver::Click(Editor, "cmdAdd");
  });
  script.Picture(Editor, "set-alarms");
  script.On(Editor, [] {
    Require(Driver::Texts(View(Editor, "tvSelectedAlarms")), "Disk Bad Block, Services and Shutdowns",
            "what was chosen by drag and button");
  });
}

void ChooseIgnoresAndNotifications(Script& script) {
  script.On(Editor, [] {
    Driver::BringToFront(Editor, 1);
    Driver::Pick(View(Editor, "tvDenyAlarms"),
                 {"Windows 2000/XP/2003", "System", "Everyday Noise", "Document Printed"});
    Driver::Click(Editor, "cmdDenyAdd");
  });
  script.Picture(Editor, "events-to-ignore");
  script.On(Editor, [] {
    Driver::BringToFront(Editor, 3);
    Driver::Pick(View(Editor, "lvwNotifications"), {"Duty Desk Popup"});
    Driver::Pick(View(Editor, "lvwNotifications"), {"Operations by Mail"}, Qt::ControlModifier);
    Driver::Click(Editor, "cmdNotAdd");
  });
  script.Picture(Editor, "set-notifications");
  script.On(Editor, [] { Driver::Click(Editor, "cmdOK"); });
}

bool ListShows(const char* texts) {
  return Driver::Window(Editor) == nullptr && Driver::Texts(View(Main, "lvwComputers")) == texts;
}

void EditTheLog(Script& script) {
  script.When(
      "the list shows the new log", [] { return ListShows("MERFILE01"); }, [] {});
  script.Picture(Main, "main-window-watching");
  script.On(Main, [] { Driver::DoubleClick(View(Main, "lvwComputers"), 0); });
  script.When("the editor is loaded", EditorIsLoaded, [] {
    Require(Driver::Find<QComboBox>(Editor, "lstComputerName").currentText(), "MERFILE01", "the computer");
    Require(Driver::Texts(View(Editor, "tvSelectedAlarms")), "Disk Bad Block, Services and Shutdowns", "the alarms");
    Require(Driver::Texts(View(Editor, "tvSelectedDenyAlarms")), "Document Printed", "the ignore events");
    Require(Driver::Texts(View(Editor, "lvwActiveNotifications")), "Duty Desk Popup, Operations by Mail",
            "the notifications");
  });
  script.Picture(Editor, "statistics");
  script.On(Editor, [] {
    Driver::BringToFront(Editor, 3);
    Driver::Pick(View(Editor, "lvwActiveNotifications"), {"Duty Desk Popup"});
    Driver::Click(Editor, "cmdNotDown");
    Driver::BringToFront(Editor, 2);
    Driver::Pick(View(Editor, "lvwAlarmGroups"), {"Disk and File System"});
    Driver::Click(Editor, "cmdAdd");
  });
  script.Picture(Editor, "set-alarms-changed");
  script.On(Editor, [] { Driver::Click(Editor, "cmdOK"); });
  script.When(
      "the list shows the changed log", [] { return ListShows("MERFILE01"); }, [] {});
  script.Picture(Main, "main-window-changed");
}

void LookAround(Script& script) {
  script.On(Main, [] { Driver::BringToFront(Main, 1); });
  script.Picture(Main, "syslog-devices");
  script.On(Main, [] {
    Driver::BringToFront(Main, 0);
    Driver::ClickTool(Main, "refresh");
  });
  script.On(Main, [] { Driver::Window(Main)->close(); });
}

}  // namespace

void AddMainJob(Script& script) {
  Start(script);
  ChooseComputerAndLog(script);
  ChooseAlarms(script);
  ChooseIgnoresAndNotifications(script);
  EditTheLog(script);
  LookAround(script);
}

}  // namespace corvane::tour
