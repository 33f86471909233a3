#include "domains/frmComputerEnum.h"

#include "core/modMain.h"
#include "domains/DomainList.h"
#include "platform/DirectoryProvider.h"
#include "platform/ui/UiHost.h"

namespace corvane {
namespace {

constexpr int HelpTopic = 140;

// The sources, as the setting and the options number them.
constexpr int BrowseList = 0;
constexpr int Accounts = 1;
constexpr int Unit = 2;

}  // namespace

frmComputerEnum::frmComputerEnum(modMain& main) : Form(main.Ui, "frmComputerEnum"), main_(main) {
  HelpContext = HelpTopic;
  SetCaptions();
  int index = 0;
  for (ui::OptionButton& option : optRetrieve) {
    option.Index = index++;
    option.Click = [this] { optRetrieve_Click(); };
  }
  for (int i : {0, 1}) lblNote[static_cast<std::size_t>(i)].Index = i;
  // Only a unit that was chosen has a path; a name typed by hand would find nothing.
  txtOU.Locked = true;
  cmdBrowse.Click = [this] { cmdBrowse_Click(); };
  cmdOK.Default = true;
  cmdOK.Click = [this] { cmdOK_Click(); };
  cmdCancel.Cancel = true;
  cmdCancel.Click = [this] { Unload(); };
}

void frmComputerEnum::SetCaptions() {
  Caption = "Computer Name Retrieval";
  fraRetrieve.Caption = "Corvane should retrieve computer names from";
  optRetrieve[BrowseList].Caption = "The &browse list (e.g. what you see in  My Network Places / Network Neighborhood)";
  lblNote[BrowseList].Caption =
      "The browse list will display all computers currently on the network, and can be dependent on NetBIOS/WINS.";
  optRetrieve[Accounts].Caption = "The &AD server / domain controller (all computer accounts in the domain)";
  lblNote[Accounts].Caption = "Choose this option to retrieve computer names directly from your domain controller.";
  optRetrieve[Unit].Caption = "The following &OU in Active Directory:";
  cmdBrowse.Caption = "B&rowse...";
  cmdOK.Caption = "OK";
  cmdCancel.Caption = "Cancel";
}

// A unit that was set on a system with a directory falls back to the browse list on one without.
bool frmComputerEnum::Form_Load() {
  domain_ = main_.Setting("DefaultDomain");
  const double stored = main_.SettingNumber("ComputerEnum");
  const int source = stored == Accounts ? Accounts : stored == Unit ? Unit : BrowseList;
  if (source == Unit) {
    txtOU.Text = main_.Setting("OUName");
    unitPath_ = main_.Setting("OUPath");
  }
  optRetrieve[Unit].Enabled = main_.HasDirectoryApi;
  ui::ChooseOption(optRetrieve, source == Unit && !main_.HasDirectoryApi ? BrowseList : source);
  optRetrieve_Click();
  return true;
}

void frmComputerEnum::optRetrieve_Click() { txtOU.Enabled = cmdBrowse.Enabled = optRetrieve[Unit].Value; }

void frmComputerEnum::cmdBrowse_Click() {
  if (domain_.empty())
    Refuse("You must enter a default domain before attempting to choose an organizational unit!");
  else if (FlatDomainName(main_, domain_).empty())
    Refuse("An Active Directory server for domain " + domain_ +
           " could not be located.  Please enter a valid domain name (Options Menu -> Mirelle Preferences) and try "
           "again.");
  else
    ChooseUnit();
}

void frmComputerEnum::ChooseUnit() {
  const auto containersOf = [this](const std::string& path) { return main_.Platform.Units.Containers(path); };
  const auto chosen = main_.Ui.ChooseContainer(main_.Ui.Title, {domain_, "LDAP://" + domain_}, containersOf);
  txtOU.Text = chosen ? chosen->Name : "";
  unitPath_ = chosen ? chosen->Path : "";
  if (!chosen)
    Refuse(
        "You did not select an organizational unit or container.  Please select one if you wish to use this option.");
}

void frmComputerEnum::cmdOK_Click() {
  const int source = ui::ChosenOption(optRetrieve);
  if (source == Unit && txtOU.Text.empty()) {
    Refuse("You must select an organizational unit with the current computer retrieval option selected!");
    return;
  }
  main_.SaveSetting("ComputerEnum", std::to_string(source));
  if (source == Unit) {
    main_.SaveSetting("OUName", txtOU.Text);
    main_.SaveSetting("OUPath", unitPath_);
  }
  Unload();
}

void frmComputerEnum::Refuse(const std::string& text) { main_.Ui.MsgBox(text, ui::MsgIcon::Exclamation); }

}  // namespace corvane
