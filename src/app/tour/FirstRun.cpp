#include "app/tour/FirstRun.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include "app/tour/Script.h"

namespace corvane::tour {
namespace {

constexpr const char* Account = "frmServiceAccount";

void ChooseDomain(Script& script) {
  const char* chooser = "frmDomainChooser";
  script.On(chooser, [=] {
    Driver::Click(chooser, "optDomain_0");
    Driver::Type(Driver::Find<QLineEdit>(chooser, "txtStartupDomain"), "meridian.example");
  });
  script.Picture(chooser, "default-domain");
  script.On(chooser, [=] { Driver::Click(chooser, "cmdOK"); });
}

bool AccountsAreListed() {
  return Driver::Window(Account) != nullptr && Driver::Find<QComboBox>(Account, "lstAccountName").count() > 0 &&
         !Driver::Find<QLabel>(Account, "lblWait").isVisible();
}

void SetAccount(Script& script) {
  script.When("the accounts are listed", AccountsAreListed, [] {
    Driver::Choose(Driver::Find<QComboBox>(Account, "lstAccountName"), "MERIDIAN\\svc-corvane");
    for (const char* box : {"txtPassword", "txtPassword2"})
      Driver::Type(Driver::Find<QLineEdit>(Account, box), "Harbour!7!");
  });
  script.Picture(Account, "service-account");
  script.On(Account, [] { Driver::Click(Account, "cmdOK"); });
  script.Answer("Privileged Operation", "domain-rights", QMessageBox::Yes);
  script.Answer("Corvane", "rights-granted", QMessageBox::Ok);
}

void ChooseComputerNames(Script& script) {
  const char* source = "frmComputerEnum";
  script.On(source, [=] { Driver::Click(source, "optRetrieve_1"); });
  script.Picture(source, "computer-names");
  script.On(source, [=] { Driver::Click(source, "cmdOK"); });
}

}  // namespace

void AddFirstRun(Script& script) {
  script.Picture("frmBegin", "notice");
  script.On("frmBegin", [] { Driver::Click("frmBegin", "cmdStart"); });
  ChooseDomain(script);
  SetAccount(script);
  ChooseComputerNames(script);
  script.When(
      "the main window shows the domain",
      [] {
        return Driver::Window("frmCVMain") != nullptr &&
               Driver::Find<QComboBox>("frmCVMain", "lstDomain").currentText() == "MERIDIAN";
      },
      [] {});
  script.Picture("frmCVMain", "main-window");
  script.On("frmCVMain", [] { Driver::Window("frmCVMain")->close(); });
}

}  // namespace corvane::tour
