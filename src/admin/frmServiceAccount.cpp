#include "admin/frmServiceAccount.h"

#include "core/ServiceControl.h"
#include "core/modMain.h"
#include "domains/DomainList.h"
#include "platform/Conversions.h"
#include "platform/NetX.h"
#include "platform/ui/UiHost.h"

namespace corvane {
namespace {

constexpr int HelpTopic = 280;
constexpr const char* MonitoringService = "Corvane Service";
constexpr const char* RightsToGrant[] = {"SeServiceLogonRight", "SeTcbPrivilege"};
constexpr const char* RightsInWords = "\n1.) Log on as a service\n2.) Act as part of the operating system";

enum Source { DomainSource = 0, LocalSource = 1 };

// Overwritten before it is let go, so that nothing of it stays in freed memory.
void Wipe(std::string& secret) {
  for (volatile char& c : secret) c = 0;
  secret.clear();
}

}  // namespace

frmServiceAccount::frmServiceAccount(modMain& main) : Form(main.Ui, "frmServiceAccount"), main_(main) {
  HelpContext = HelpTopic;
  SetCaptions();
  for (std::size_t i = 0; i < optAccountSource.size(); ++i) {
    optAccountSource[i].Index = static_cast<int>(i);
    optAccountSource[i].Click = [this] { ListAccounts(); };
  }
  lstAccountName.Editable = true;
  lblWait.Visible = false;
  txtPassword.IsPassword = txtPassword2.IsPassword = true;
  cmdOK.Default = true;
  cmdOK.Click = [this] { cmdOK_Click(); };
  cmdCancel.Cancel = true;
  cmdCancel.Click = [this] { cmdCancel_Click(); };
  tmrLoad.Interval = 75;
  tmrLoad.Tick = [this] {
    tmrLoad.Enabled = false;
    ListAccounts();
  };
}

void frmServiceAccount::SetCaptions() {
  Caption = "Set Service Account";
  lblAccountName.Caption = "&Account Name:";
  lblWait.Caption = "Please wait...  Retrieving user accounts....";
  lblPassword.Caption = "&Password:";
  lblPassword2.Caption = "&Confirm Password:";
  lblHelp.Caption =
      "Press F1 for more help on service configuration issues, including how to manually configure this service.";
  cmdOK.Caption = "OK";
  cmdCancel.Caption = "Cancel";
}

// The accounts wait for the timer: finding a controller takes its time, and the window is to be on the screen by then.
bool frmServiceAccount::Form_Load() {
  domain_ = main_.Setting("DefaultDomain");
  computer_ = main_.Registry.FindCompName();
  const bool managesDomain = main_.SettingNumber("ManagingADomain") == 1;
  lblInfo.Caption =
      "Choose the account under which the Corvane Service runs on " + ui::Literal(computer_) +
      ", and type its password.  The service reads event logs under this account, which therefore needs administrator "
      "rights on the computers that you watch.";
  optAccountSource[DomainSource].Caption = "&I want to choose a domain account from domain " + ui::Literal(domain_);
  optAccountSource[DomainSource].Visible = managesDomain;
  optAccountSource[LocalSource].Caption = "I &want to choose a local account from computer " + ui::Literal(computer_);
  ui::ChooseOption(optAccountSource, managesDomain ? DomainSource : LocalSource);
  return true;
}

void frmServiceAccount::Form_Unload() {
  ++listing_;
  ClearPasswords();
}

void frmServiceAccount::SetBusy(bool busy) {
  lblWait.Visible = busy;
  MousePointer = busy ? ui::Pointer::Hourglass : ui::Pointer::Default;
}

void frmServiceAccount::ListAccounts() {
  const int listing = ++listing_;
  const bool fromDomain = optAccountSource[DomainSource].Value;
  lstAccountName.Clear();
  SetBusy(true);
  main_.Ui.DoEvents();
  if (listing != listing_) return;
  const std::string server = fromDomain ? DomainController() : computer_;
  if (!server.empty()) AddAccounts(listing, server, fromDomain ? domain_ : computer_);
  if (listing != listing_) return;
  SetBusy(false);
  if (lstAccountName.Count() == 0)
    Refuse(
        "No accounts were found.  You may have insufficient rights to enumerate accounts from the domain controller, "
        "or Corvane may be having difficulty locating your domain controller.  You may wish to type in the name of "
        "your desired service account by hand, using the form DOMAIN\\Account or LOCALCOMPUTER\\Account.");
}

void frmServiceAccount::AddAccounts(int listing, const std::string& server, const std::string& place) {
  std::string name;
  bool more = true;
  for (int mode = NetX::Begin; more && listing == listing_; mode = NetX::Continue) {
    name.clear();
    more = main_.Platform.NetX.EnumAccounts(server, name, mode);
    if (!name.empty()) lstAccountName.AddItem(place + "\\" + name);
    main_.Ui.DoEvents();
  }
}

void frmServiceAccount::cmdOK_Click() {
  if (txtPassword.Text != txtPassword2.Text)
    return Refuse("The passwords you have entered do not match.  Please retype them, and try again.");
  // A running service keeps its old account, so it is stopped first. A name that is refused leaves it stopped.
  StopCorvaneServiceNow(main_.Platform.Services);
  const std::string account = lstAccountName.Text();
  const std::size_t backslash = account.find('\\');
  if (backslash == account.npos) return Refuse("You must type in a valid service account name before continuing.");
  const bool isLocal = SameText(account.substr(0, backslash), computer_);
  if (!(isLocal ? SetLocalAccount(account) : SetDomainAccount(account))) return;
  main_.SaveSetting("ServiceAccount", account);
  main_.SaveSetting("Created", "1");
  StartService();
  Unload();
}

bool frmServiceAccount::SetLocalAccount(const std::string& account) {
  const bool granted = GrantRights(computer_, account);
  if (!SetServiceAccount(account)) return false;
  TellLocalRights(account, granted);
  return true;
}

// Settled: what became of the rights on this computer is not looked at, and the question is asked in any case.
bool frmServiceAccount::SetDomainAccount(const std::string& account) {
  GrantRights(computer_, account);
  const bool isWanted =
      main_.Ui.MsgBox(
          "Corvane has added the 'Act as part of the operating system' and 'Logon as a Service' user rights to the " +
              account + " account on this local system (" + computer_ +
              ").  Would you also like to add these user rights to " + account +
              " at the domain level (If Corvane will ever be running on domain controllers, this is recommended.)",
          ui::MsgIcon::Question, ui::MsgButtons::YesNo, "Privileged Operation") == ui::MsgResult::Yes;
  const bool granted = isWanted && GrantDomainRights(account);
  if (!SetServiceAccount(account)) return false;
  if (isWanted) TellDomainRights(account, granted);
  return true;
}

bool frmServiceAccount::SetServiceAccount(const std::string& account) {
  if (main_.Platform.NetX.SetServiceAccount(computer_, MonitoringService, account, txtPassword.Text)) {
    Refuse("There was an error configuring the Corvane Service to run under account " + account +
           ".  Are you sure that this account exists, and that your account has sufficient rights to perform this "
           "operation?");
    return false;
  }
  ClearPasswords();
  return true;
}

void frmServiceAccount::TellLocalRights(const std::string& account, bool granted) {
  if (granted)
    Inform("The " + account + " account has been granted two user rights on " + computer_ +
           " so that the Corvane Service can work correctly:" + RightsInWords);
  else
    Refuse(
        "Corvane could not grant the 'Log on as a service' and 'Act as part of the operating system' user rights to "
        "account " +
        account + " on " + computer_ +
        ".  This may be due to your currently logged-on account having insufficient rights to perform this operation "
        "on the local machine.  While Corvane has configured the Corvane Service to run under the account you "
        "selected, verify that this account has both of those user rights.  These user rights are required at the "
        "machine level in order for the Corvane Service to function properly.");
}

void frmServiceAccount::TellDomainRights(const std::string& account, bool granted) {
  if (granted)
    Inform("The " + account +
           " account has been granted two user rights at the domain level so that the Corvane Service can work "
           "correctly:" +
           RightsInWords);
  else
    Refuse(
        "Corvane could not grant the 'Log on as a service' and 'Act as part of the operating system' user rights to "
        "account " +
        account +
        " at the domain level.  This may be due to your currently logged-on account having insufficient rights to "
        "perform this operation on the domain controller and/or local machine.  While Corvane has configured the "
        "Corvane Service to run under the account you selected, verify that this account has both of those user "
        "rights.  Both user rights may be needed at the domain level in order for the Corvane Service to function "
        "properly.");
}

void frmServiceAccount::StartService() {
  SetServiceAutoStart(main_.Platform.Services);
  if (StartCorvaneServiceNow(main_.Platform.Services) == 1) return;
  Refuse(
      "There was an error starting the Corvane Service.  Are you sure that you supplied the correct password for this "
      "service account?  Corvane configuration will continue, but please investigate this issue using the Services "
      "Control Panel Applet or MMC Services Snap-in.  Also, check the local Application event log for errors logged by "
      "the Corvane Service when attempting to start.");
}

void frmServiceAccount::cmdCancel_Click() {
  if (main_.Setting("Created") != "1") {
    if (main_.Ui.MsgBox(
            "You must give the Corvane Service a valid service account before the software will function properly.  If "
            "you suspect that a network or permissions issue is preventing you from assigning a service account, press "
            "'OK' to close this dialog and read a help topic explaining how to manually set your Corvane Service "
            "account.  Otherwise, press 'Cancel' and try again.",
            ui::MsgIcon::Exclamation, ui::MsgButtons::OkCancel) != ui::MsgResult::Ok)
      return;
    main_.Ui.ShowHelp(HelpTopic);
  }
  Unload();
}

bool frmServiceAccount::GrantRights(const std::string& computer, const std::string& account) {
  bool granted = true;
  for (const char* right : RightsToGrant)
    if (main_.Platform.NetX.GrantRight(computer, right, account)) granted = false;
  return granted;
}

bool frmServiceAccount::GrantDomainRights(const std::string& account) {
  const std::string controller = DomainController();
  return !controller.empty() && GrantRights(controller, account);
}

std::string frmServiceAccount::DomainController() {
  if (main_.DirectoryApi) return FlatDomainName(main_, domain_);
  std::string name;
  main_.Platform.NetX.GetDomainControllerName(domain_, name);
  return name;
}

void frmServiceAccount::ClearPasswords() {
  Wipe(txtPassword.Text);
  Wipe(txtPassword2.Text);
}

void frmServiceAccount::Inform(const std::string& text) { main_.Ui.MsgBox(text, ui::MsgIcon::Information); }

void frmServiceAccount::Refuse(const std::string& text) { main_.Ui.MsgBox(text, ui::MsgIcon::Exclamation); }

}  // namespace corvane
