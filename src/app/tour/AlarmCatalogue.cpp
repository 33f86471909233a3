#include "app/tour/AlarmCatalogue.h"

#include <QPlainTextEdit>
#include <QTest>

#include "app/tour/Script.h"

namespace corvane::tour {
namespace {

constexpr const char* Main = "frmCVMain";
constexpr const char* Alarms = "frmAlarms";
constexpr const char* Information = "frmAlarmInformation";
constexpr const char* Bundles = "frmAlarmGroups";
constexpr const char* Export = "frmAlarmExport";
constexpr const char* Import = "frmAlarmImport";

const QStringList Disks{"Windows 2000/XP/2003", "System", "Disk and File System"};

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

void MakeABundle(Script& script) {
  script.When(
      "the main window is in front", [] { return Driver::Window(Alarms) == nullptr; },
      [] { Driver::ClickTool(Main, "alarmgroups"); });
  script.Picture(Bundles, "define-alarm-bundles");
  script.On(Bundles, [] {
    Driver::Click(Bundles, "cmdAdd");
    Driver::Type(Line(Bundles, "txtGroupName"), "Dying Disks");
    for (const char* alarm : {"Delayed Write Lost", "Disk Bad Block"}) {
      Driver::Pick(View(Bundles, "tvAlarms"), Disks + QStringList{alarm});
      Driver::Click(Bundles, "cmdAlarmAdd");
    }
  });
  script.Picture(Bundles, "alarm-bundle");
  script.On(Bundles, [] { Driver::Click(Bundles, "cmdSave"); });
  script.On(Bundles, [] { Driver::Click(Bundles, "cmdCancel"); });
}

// Typing would open the list of completions above the buttons.
void GiveFile(Script& script, const char* dialog, const std::string& path) {
  script.On(dialog, [=] {
    Driver::Find<QLineEdit>(dialog, "fileNameEdit").setText(QString::fromStdString(path));
    QTest::keyClick(Driver::Window(dialog), Qt::Key_Return);
  });
}

void ExportAlarms(Script& script) {
  script.When(
      "the main window is in front", [] { return Driver::Window(Bundles) == nullptr; },
      [] { Driver::ClickTool(Main, "exportalarms"); });
  script.On(Export, [] { Driver::Click(Export, "cmdBrowse"); });
  GiveFile(script, "SaveDialog", script.Folder() + "/alarms.ini");
  script.When(
      "the alarms are offered",
      [] { return Driver::Window(Export)->isActiveWindow() && View(Export, "tvAlarms").model()->rowCount() > 0; },
      [] {
        Driver::Pick(View(Export, "lvwAlarmGroups"), {"Dying Disks"});
        Driver::Click(Export, "cmdAdd");
        Driver::Pick(View(Export, "tvAlarms"), Disks + QStringList{"Volume Nearly Full"});
        Driver::Click(Export, "cmdAdd");
      });
  script.Picture(Export, "export-alarms");
  script.On(Export, [] { Driver::Click(Export, "cmdOK"); });
  script.Answer("Corvane", "exported", QMessageBox::Ok);
}

void CloseMain(Script& script, const char* last) {
  script.When(
      "the main window is in front", [=] { return Driver::Window(last) == nullptr; },
      [] { Driver::Window(Main)->close(); });
}

}  // namespace

void AddAlarmCatalogue(Script& script) {
  RenameACategory(script);
  WriteAnAlarm(script);
  MakeABundle(script);
  ExportAlarms(script);
  CloseMain(script, Export);
}

void AddAlarmImport(Script& script) {
  script.On(Main, [] { Driver::ClickTool(Main, "importalarms"); });
  script.On(Import, [] { Driver::Click(Import, "cmdBrowse"); });
  GiveFile(script, "OpenDialog", script.Folder() + "/../alarm-catalogue/alarms.ini");
  script.When(
      "the file is listed", [] { return View(Import, "lvwItemsToImport").model()->rowCount() == 3; },
      [] { Driver::Pick(View(Import, "lvwItemsToImport"), {"Volume Nearly Full"}); });
  script.On(Import, [] { Driver::Click(Import, "cmdDelete"); });
  script.On(Import, [] { Driver::Pick(View(Import, "lvwItemsToImport"), {"Delayed Write Lost"}); });
  script.Picture(Import, "import-alarms");
  script.On(Import, [] { Driver::Click(Import, "cmdView"); });
  script.Picture(Import, "alarm-to-import");
  script.On(Import, [] { Driver::Click(Import, "cmdAbandon"); });
  script.On(Import, [] { Driver::Click(Import, "cmdImport"); });
  script.Answer("Overwrite Record", "overwrite", QMessageBox::Yes);
  script.Answer("Corvane", "imported", QMessageBox::Ok);
  CloseMain(script, Import);
}

}  // namespace corvane::tour
