#include "adapters/lab/LabNetX.h"
#include "admin/frmServiceAccount.h"
#include "app/installation/TextFile.h"
#include "core/ServiceControl.h"
#include "core/Settings.h"
#include "support/ConsoleTest.h"
#include "support/ReplacedPorts.h"

namespace corvane::test {
namespace {

using Names = std::vector<std::string>;

// Notes what is asked of whom, and fails where it is told to.
class WitnessNetX : public LabNetX {
 public:
  using LabNetX::LabNetX;
  bool GrantRight(const std::string& computer, const std::string& right, const std::string& account) override {
    return Fails(computer + " " + right) || LabNetX::GrantRight(computer, right, account);
  }
  bool SetServiceAccount(const std::string& computer, const std::string& service, const std::string& account,
                         const std::string& password) override {
    return Fails(computer + " " + service) || LabNetX::SetServiceAccount(computer, service, account, password);
  }
  bool Fails(const std::string& call) {
    Calls += call + "; ";
    return !Failing.empty() && call.find(Failing) != call.npos;
  }
  std::string Calls, Failing;
};

class ServiceAccount : public ConsoleTest {
 protected:
  void OnForm(std::function<void(frmServiceAccount&)> script) {
    Host.OnModal<frmServiceAccount>("frmServiceAccount", std::move(script));
    frmServiceAccount(Main).ShowModal();
  }

  LabNetwork Network{Console.Folder() / Installation::LabFile};
  WitnessNetX Net{Network};
  Platform Ports = Replace(Console.Ports, {.NetX = &Net});
  modMain Main{Ports};
};

TEST_F(ServiceAccount, IsChosenFromTheDomainOrFromThisComputer) {
  for (const std::string domain : {"DEPOT", "NOWHERE", ""}) {
    Main.SaveSetting("DefaultDomain", domain);
    Main.Registry.SetKeyValue(SettingsKey, "ManagingADomain", domain.empty() ? 0 : 1, registry::Number);
    OnForm([&](frmServiceAccount& form) {
      EXPECT_EQ("&I want to choose a domain account from domain " + domain, form.optAccountSource[0].Caption);
      EXPECT_EQ(!domain.empty(), form.optAccountSource[0].Visible && form.optAccountSource[0].Value);
      Host.OnDoEvents([&] { EXPECT_TRUE(form.lblWait.Visible && form.lstAccountName.All().empty()); });
      if (domain == "NOWHERE") OnMessage("NoAccounts");
      Host.Pass(75);
      EXPECT_EQ(domain == "DEPOT" ? 2 : -1, form.lstAccountName.IndexOf("DEPOT\\foreman"));
      // The listing of this computer ends with its second account, where the screen does.
      for (int i = 0; i < 2; ++i) Host.OnDoEvents([] {});
      Host.OnDoEvents([&] { form.Unload(); });
      ui::ChooseOption(form.optAccountSource, 1);
      form.optAccountSource[1].Click();
      EXPECT_EQ((Names{"CVCONSOLE1\\Administrator", "CVCONSOLE1\\Guest"}), form.lstAccountName.All());
    });
  }
}

TEST_F(ServiceAccount, IsSetInItsOrderAndEveryOutcomeIsTold) {
  const std::string here = "CVCONSOLE1 SeServiceLogonRight; CVCONSOLE1 SeTcbPrivilege; ",
                    there = "MERDC01 SeServiceLogonRight; MERDC01 SeTcbPrivilege; ",
                    set = "CVCONSOLE1 Corvane Service; ", far = "MERIDIAN\\svc-corvane", own = "cvconsole1\\corvane";
  const struct {
    std::string Account, Password, Domain, Failing;
    Names Told;
    std::string Calls;
  } cases[] = {
      {"corvane", "lantern!", "MERIDIAN", "", {"NoName"}, ""},
      {own, "lantern!", "MERIDIAN", "", {"LocalGranted"}, here + set},
      {own, "lantern", "MERIDIAN", "ServiceLogon", {"LocalFailed", "NotStarted"}, here + set},
      {own, "lantern!", "MERIDIAN", "Tcb", {"LocalFailed"}, here + set},
      {own, "lantern!", "MERIDIAN", "Corvane", {"NotSet"}, here + set},
      {far, "lantern!", "MERIDIAN", "", {"Question"}, here + set},
      {far, "lantern!", "MERIDIAN", "CVCONSOLE1 Se", {"Question", "DomainGranted"}, here + there + set},
      {far, "lantern!", "MERIDIAN", "MERDC01 SeServ", {"Question", "DomainFailed"}, here + there + set},
      {far, "lantern!", "NOWHERE", "", {"Question", "DomainFailed"}, here + set},
      {"HARBOR\\nobody", "lantern!", "MERIDIAN", "", {"Question", "NotSet"}, here + there + set},
      {far, "lantern", "MERIDIAN", "", {"Question", "DomainGranted", "NotStarted"}, here + there + set},
  };
  for (const char* takes : {"StartMs", "StopMs"}) Console.SetLab("Service Corvane Service", takes, "0");
  Main.DirectoryApi = Ports.CreateDirectoryApi();
  for (const auto& c : cases) {
    for (const char* setting : {"Created", "ServiceAccount"}) Main.SaveSetting(setting, "");
    Main.SaveSetting("DefaultDomain", c.Domain);
    Console.SetLab("Service Corvane Service", "State", "running");
    Net.Calls.clear();
    Net.Failing = c.Failing;
    const bool isSet = c.Told.back() != "NoName" && c.Told.back() != "NotSet";
    OnForm([&](frmServiceAccount& form) {
      form.lstAccountName.SetText(c.Account);
      form.txtPassword.Text = c.Password;
      OnMessage("Mismatch");
      Host.Click(form.cmdOK);
      EXPECT_EQ(1, CorvaneServiceState(Ports.Services)) << "nothing is done yet";
      form.txtPassword2.Text = c.Password;
      for (const std::string& name : c.Told)
        OnMessage(name, c.Account, c.Told.size() > 1 ? ui::MsgResult::Yes : ui::MsgResult::No);
      Host.Click(form.cmdOK);
      EXPECT_EQ(isSet, form.IsUnloaded()) << c.Account;
      for (int i = 0; i < 2 && !isSet; ++i) {
        EXPECT_EQ(c.Password, form.txtPassword.Text);
        OnMessage("Needed", "", i == 0 ? ui::MsgResult::Cancel : ui::MsgResult::Ok);
        form.CloseBox();
      }
      EXPECT_EQ("", form.txtPassword.Text + form.txtPassword2.Text);
    });
    EXPECT_EQ(c.Calls, Net.Calls) << c.Account;
    EXPECT_EQ(isSet && c.Told.back() != "NotStarted", CorvaneServiceState(Ports.Services) == 1) << c.Account;
    EXPECT_EQ(isSet ? c.Account + "1" : "", Main.Setting("ServiceAccount") + Main.Setting("Created"));
  }
  OnForm([](frmServiceAccount& form) { form.CloseBox(); });
  EXPECT_EQ((std::vector<int>{280, 280, 280}), Host.HelpTopics);
  std::string all;
  for (const ShownBox& box : Host.Boxes) all += box.Title + box.Text;
  for (const std::string& statement : Console.Data.Statements) all += statement;
  for (const auto& file : std::filesystem::recursive_directory_iterator(Console.Folder()))
    if (file.is_regular_file()) all += ReadTextFile(file);
  EXPECT_NE(all.npos, all.find("Privileged OperationCorvane has added"));
  EXPECT_NE(all.npos, all.find("Account = MERIDIAN\\svc-corvane\nLogon = bad\nStart = automatic")) << "files are read";
  EXPECT_EQ(all.npos, all.find("lantern")) << "a password is kept nowhere";
}

}  // namespace
}  // namespace corvane::test
