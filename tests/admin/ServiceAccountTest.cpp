#include "adapters/lab/LabNetX.h"
#include "admin/frmServiceAccount.h"
#include "core/ServiceControl.h"
#include "core/Settings.h"
#include "support/Cases.h"
#include "support/ConsoleTest.h"
#include "support/ReplacedPorts.h"

namespace corvane::test {

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
  for (const char* takes : {"StartMs", "StopMs"}) Console.SetLab("Service Corvane Service", takes, "0");
  Main.DirectoryApi = Ports.CreateDirectoryApi();
  for (const auto& c : Cases("admin/Accounts.txt")) {
    const std::string &account = c[0], &password = c[1];
    std::istringstream messages(c[4]);
    const Names told(std::istream_iterator<std::string>(messages), {});
    for (const char* setting : {"Created", "ServiceAccount"}) Main.SaveSetting(setting, "");
    Main.SaveSetting("DefaultDomain", c[2]);
    Console.SetLab("Service Corvane Service", "State", "running");
    Net.Calls.clear();
    Net.Failing = c[3];
    const bool isSet = told.back() != "NoName" && told.back() != "NotSet";
    OnForm([&](frmServiceAccount& form) {
      form.lstAccountName.SetText(account);
      form.txtPassword.Text = password;
      OnMessage("Mismatch");
      Host.Click(form.cmdOK);
      EXPECT_EQ(1, CorvaneServiceState(Ports.Services)) << "nothing is done yet";
      form.txtPassword2.Text = password;
      for (const std::string& name : told)
        OnMessage(name, account, told.size() > 1 ? ui::MsgResult::Yes : ui::MsgResult::No);
      Host.Click(form.cmdOK);
      EXPECT_EQ(isSet, form.IsUnloaded()) << account;
      for (int i = 0; i < 2 && !isSet; ++i) {
        EXPECT_EQ(password, form.txtPassword.Text);
        OnMessage("Needed", "", i == 0 ? ui::MsgResult::Cancel : ui::MsgResult::Ok);
        form.CloseBox();
      }
      EXPECT_EQ("", form.txtPassword.Text + form.txtPassword2.Text);
    });
    EXPECT_EQ(c[5], Net.Calls) << account;
    EXPECT_EQ(isSet && told.back() != "NotStarted", CorvaneServiceState(Ports.Services) == 1) << account;
    EXPECT_EQ(isSet ? account + "1" : "", Main.Setting("ServiceAccount") + Main.Setting("Created"));
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

}  // namespace corvane::test
