#include "core/console/frmBegin.h"

#include "core/Browser.h"
#include "core/modMain.h"
#include "platform/ui/UiHost.h"

namespace corvane {
namespace {

constexpr int HelpTopic = 100;
constexpr int ShiftCtrlAlt = 7;

constexpr const char* Steps =
    "1.  Choose a default domain or workgroup.\n"
    "Corvane lists the computers of this domain first, and of those that it trusts.\n\n"
    "2.  Have a service account at hand.\n"
    "The Corvane Service reads event logs under this account.  It needs the rights of a domain administrator, or of an "
    "administrator of the organizational unit that holds your computers, and it must be a local administrator of this "
    "computer.\n\n"
    "3.  Be an administrator yourself.\n"
    "To set up the service, the account you are logged on with needs administrator rights on this computer.\n\n"
    "4.  Pick an internal SMTP server and a \"from\" address.\n"
    "E-mail notifications are sent through this server, from this address.\n\n"
    "5.  On Windows NT 4.0, prefer a member server or workstation.\n"
    "Corvane runs on a domain controller, but it should not be installed on one if there is a choice.";

}  // namespace

frmBegin::frmBegin(modMain& main) : Form(main.Ui, "frmBegin"), main_(main) {
  Caption = "Welcome to Corvane";
  HelpContext = HelpTopic;
  imgBegin.Picture = "begin";
  lblTitle.Caption =
      "Since this is your first time running Corvane, here are a few actions you need to take before you begin.  "
      "Please "
      "review the steps below, and press F1 for additional information in the help file.  Once you have verified the "
      "steps below, press Start >> to continue.";
  txtSteps.MultiLine = txtSteps.Locked = true;
  txtSteps.Text = Steps;
  imgSupport.Picture = "support";
  imgSupport.ToolTip = "Open the support page in your browser";
  imgSupport.Click = [this](int) { OpenInBrowser(main_, SupportPage); };
  imgEA.Picture = "ea";
  imgEA.Click = [this](int shift) { imgEA_Click(shift); };
  cmdStart.Caption = "Start >>";
  cmdStart.Default = true;
  cmdStart.Click = [this] { Unload(); };
}

// A small hidden touch: the legal line shows only with all three keys held.
void frmBegin::imgEA_Click(int shift) {
  if (shift != ShiftCtrlAlt) return;
  main_.Ui.MsgBox("Corvane is a trademark of Tarnwick Software.  All rights reserved.", ui::MsgIcon::Information);
}

}  // namespace corvane
