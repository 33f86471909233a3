#include "app/tour/Commands.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTest>

#include "app/tour/Script.h"

namespace corvane::tour {
namespace {

constexpr const char* Main = "frmCVMain";
constexpr const char* Viewer = "frmLogView";
constexpr const char* Manager = "frmCustomDomainManager";

QAbstractItemView& View(const char* form, const char* name) { return Driver::Find<QAbstractItemView>(form, name); }

void StartTheService(Script& script) {
  const char* control = "frmControlService";
  script.On(Main, [] { Driver::ClickTool(Main, "startservice"); });
  script.Picture(control, "start-a-service");
  script.On(control, [=] { Driver::Click(control, "cmdAction"); });
  script.Answer("Corvane", "service-started", QMessageBox::Ok);
}

void MapComputers(Script& script) {
  script.On(Main, [] { Driver::ClickTool(Main, "customdomains"); });
  for (const auto& [computer, domain] : {std::pair("kiosk 1", "lobby"), std::pair("192.0.2.77", "branch")})
    script.On(Manager, [computer = computer, domain = domain] {
      Driver::Type(Driver::Find<QLineEdit>(Manager, "txtComputer"), computer);
      Driver::Type(Driver::Find<QLineEdit>(Manager, "txtDomain"), domain);
      Driver::Click(Manager, "cmdAdd");
    });
  script.Picture(Manager, "custom-domains");
  script.On(Manager, [] { Driver::Click(Manager, "cmdOK"); });
  script.When(
      "the custom domains are listed",
      [] { return Driver::Find<QComboBox>(Main, "lstDomain").findText("CUSTOM: BRANCH") >= 0; }, [] {});
}

void ChooseUnit(Script& script) {
  const char* source = "frmComputerEnum";
  const char* browser = "ContainerDialog";
  script.On(Main, [] { Driver::ClickTool(Main, "retrievecomputersfrom"); });
  script.On(source, [=] {
    Driver::Click(source, "optRetrieve_2");
    Driver::Click(source, "cmdBrowse");
  });
  script.On(browser, [=] { Driver::Pick(View(browser, "tree"), {"MERIDIAN", "Servers", "Databases"}); });
  script.Picture(browser, "choose-a-unit");
  script.On(browser, [=] { Driver::Click(browser, "ok"); });
  script.Picture(source, "computer-names-from-unit");
  script.On(source, [=] { Driver::Click(source, "cmdOK"); });
}

void ReadTheEvents(Script& script) {
  script.On(Main, [] { Driver::ClickTool(Main, "viewlogentries"); });
  script.When(
      "the events are read",
      [] { return Driver::Window(Viewer) != nullptr && View(Viewer, "lvEvents").model()->rowCount() > 0; }, [] {});
  script.Picture(Viewer, "log-entries");
  const char* dialog = "SaveDialog";
  script.On(Viewer, [] { Driver::Click(Viewer, "cmdExport"); });
  script.On(dialog, [=, report = script.Folder() + "/report.htm"] {
    // Typing would open the list of completions above the buttons.
    Driver::Find<QLineEdit>(dialog, "fileNameEdit").setText(QString::fromStdString(report));
  });
  script.Picture(dialog, "save-the-report");
  script.On(dialog, [=] { QTest::keyClick(Driver::Window(dialog), Qt::Key_Return); });
  script.When(
      "the report is written", [=] { return Driver::Window(dialog) == nullptr; },
      [] { Driver::Click(Viewer, "cmdClose"); });
}

void StopWatching(Script& script) {
  script.On(Main, [] {
    Driver::Pick(View(Main, "lvwComputers"), {"MERFILE01"});
    Driver::ClickTool(Main, "delete");
  });
  script.Answer("Corvane", "stop-watching", QMessageBox::Yes);
  script.When(
      "the list is empty", [] { return View(Main, "lvwComputers").model()->rowCount() == 0; }, [] {});
  script.Picture(Main, "main-window-running");
  script.On(Main, [] { Driver::Window(Main)->close(); });
}

}  // namespace

void AddCommands(Script& script) {
  StartTheService(script);
  MapComputers(script);
  ChooseUnit(script);
  ReadTheEvents(script);
  StopWatching(script);
}

}  // namespace corvane::tour
