#include "domains/frmDomainChooser.h"

#include "core/PassOver.h"
#include "core/Settings.h"
#include "core/modMain.h"
#include "platform/Conversions.h"
#include "platform/ui/UiHost.h"

namespace corvane {
namespace {

constexpr int HelpTopic = 130;

enum Managing { Domains = 0, Workgroups = 1 };

// The product's name is put in when the text is shown.
constexpr std::string_view ProductName = "APPNAME";
constexpr const char* NotLocated =
    "APPNAME could not locate the domain controller for the domain you have entered.  Please make sure your domain is "
    "spelled correctly.";

std::string WithTitle(std::string text, const std::string& title) {
  return text.replace(text.find(ProductName), ProductName.size(), title);
}

}  // namespace

frmDomainChooser::frmDomainChooser(modMain& main) : Form(main.Ui, "frmDomainChooser"), main_(main) {
  HelpContext = HelpTopic;
  Caption = "Select the Primary Domain or Workgroup";
  fraFillOutFields.Caption = "Please fill out the following fields correctly, and press OK";
  lblManaging.Caption = "I am managing (a):";
  optDomain[Domains].Caption = "&Domain(s)";
  optDomain[Workgroups].Caption = "&Workgroup(s)";
  for (int i : {Domains, Workgroups}) {
    ui::OptionButton& option = optDomain[static_cast<std::size_t>(i)];
    option.Index = i;
    option.Click = [this, i] { optDomain_Click(i); };
  }
  // A label names its box from the beginning; the choice only changes the words.
  lblStartupDomain.Caption = "&Default Domain:";
  cmdOK.Caption = "OK";
  cmdOK.Default = true;
  cmdOK.Click = [this] { cmdOK_Click(); };
  cmdCancel.Caption = "Cancel";
  cmdCancel.Cancel = true;
  cmdCancel.Click = [this] { cmdCancel_Click(); };
}

bool frmDomainChooser::Form_Load() {
  const int managing = main_.SettingNumber("ManagingADomain") == 1 ? Domains : Workgroups;
  ui::ChooseOption(optDomain, managing);
  optDomain_Click(managing);
  txtStartupDomain.Text = main_.Setting("DefaultDomain");
  if (managing == Domains && txtStartupDomain.Text.empty()) txtStartupDomain.Text = DomainOfThisComputer();
  return true;
}

std::string frmDomainChooser::DomainOfThisComputer() const {
  std::string name;
  if (main_.HasDirectoryApi)
    PassOver([&] { name = main_.DirectoryApi->DsGetDomainTrustInfo("", DirectoryApi::PrimaryDomain, 1); });
  return name;
}

void frmDomainChooser::optDomain_Click(int index) {
  lblStartupDomain.Caption = index == Workgroups ? "&Default Workgroup:" : "&Default Domain:";
  if (index == Workgroups)
    lblInstructions.Caption =
        "Enter the NetBIOS (e.g. MYWORKGROUP) formatted name of your primary workgroup, and press 'OK.'  Press 'F1' "
        "for additional help.";
  else if (main_.HasDirectoryApi)
    lblInstructions.Caption =
        "Enter the DNS (e.g. mydomain.example) or NetBIOS (e.g. MYDOMAIN) formatted name of your primary domain, and "
        "press 'OK.'  Press 'F1' for additional help.";
  else
    lblInstructions.Caption =
        "Enter the NetBIOS (e.g. MYDOMAIN) formatted name of your primary domain, and press 'OK.'  Press 'F1' for "
        "additional help.";
}

void frmDomainChooser::cmdOK_Click() {
  if (txtStartupDomain.Text.empty()) {
    main_.Ui.MsgBox(
        "You must enter a default domain/workgroup name before continuing.  Press 'F1' for additional help.",
        ui::MsgIcon::Exclamation);
    return;
  }
  if (!Validate()) return;
  main_.Registry.SetKeyValue(SettingsKey, "ManagingADomain", optDomain[Domains].Value ? 1 : 0, registry::Number);
  main_.SaveSetting("DefaultDomain", UpperCase(txtStartupDomain.Text));
  Unload();
}

// Names with a dot are looked at for workgroups too, which have no DNS name: nobody is meant to enter one for them.
bool frmDomainChooser::Validate() {
  if (txtStartupDomain.Text.find('.') == std::string::npos) return true;
  if (main_.HasDirectoryApi) return ReplaceByFlatName();
  return main_.Ui.MsgBox(
             "You must enter the NetBIOS name of the domain (e.g. MYDOMAIN) before continuing.  Does the NetBIOS name "
             "of your domain contain a period (uncommon)?  If so, press 'Yes' to continue, 'No' to re-enter the "
             "NetBIOS name.",
             ui::MsgIcon::Question, ui::MsgButtons::YesNo) == ui::MsgResult::Yes;
}

bool frmDomainChooser::ReplaceByFlatName() {
  const std::string flat = FlatNameOf(txtStartupDomain.Text);
  if (flat.empty()) {
    main_.Ui.MsgBox(WithTitle(NotLocated, main_.Ui.Title), ui::MsgIcon::Exclamation);
    return false;
  }
  txtStartupDomain.Text = flat;
  return true;
}

std::string frmDomainChooser::FlatNameOf(const std::string& dnsName) const {
  std::string flat;
  PassOver([&] {
    const auto directory = main_.Platform.CreateDirectoryApi();
    const std::string controller = directory->DsGetFlatDCName(dnsName);
    if (!controller.empty()) flat = directory->DsGetDomainTrustInfo(controller, DirectoryApi::PrimaryDomain, 1);
  });
  return flat;
}

void frmDomainChooser::cmdCancel_Click() {
  if (IsFirstRun) {
    if (main_.Ui.MsgBox(
            "You must select a domain or workgroup to continue.  Would you like to end this application now?",
            ui::MsgIcon::Question, ui::MsgButtons::YesNo) == ui::MsgResult::Yes)
      main_.Ui.EndProgram();
    return;
  }
  Unload();
}

}  // namespace corvane
