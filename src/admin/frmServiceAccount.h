#pragma once

#include <array>
#include <string>

#include "platform/ui/Form.h"
#include "platform/ui/ListControls.h"
#include "platform/ui/SimpleControls.h"

namespace corvane {

class modMain;

/// "Set Service Account": grants the account of the monitoring service its user rights, has the service log on with it
/// and starts the service. The password lives in its two boxes and in the call that uses it, and nowhere else.
class frmServiceAccount : public ui::Form {
 public:
  explicit frmServiceAccount(modMain& main);

  ui::Label lblInfo{*this, "lblInfo"};
  /// Where the accounts offered come from: 0 the default domain, 1 this computer.
  std::array<ui::OptionButton, 2> optAccountSource{{{*this, "optAccountSource"}, {*this, "optAccountSource"}}};
  ui::Label lblAccountName{*this, "lblAccountName"};
  ui::ComboBox lstAccountName{*this, "lstAccountName"};
  ui::Label lblWait{*this, "lblWait"};
  ui::Label lblPassword{*this, "lblPassword"};
  ui::TextBox txtPassword{*this, "txtPassword"};
  ui::Label lblPassword2{*this, "lblPassword2"};
  ui::TextBox txtPassword2{*this, "txtPassword2"};
  ui::Label lblHelp{*this, "lblHelp"};
  ui::CommandButton cmdOK{*this, "cmdOK"};
  ui::CommandButton cmdCancel{*this, "cmdCancel"};
  ui::Timer tmrLoad{*this, "tmrLoad"};

 protected:
  bool Form_Load() override;
  void Form_Unload() override;

 private:
  void SetCaptions();
  void SetBusy(bool busy);
  void ListAccounts();
  void AddAccounts(int listing, const std::string& server, const std::string& place);
  void cmdOK_Click();
  void cmdCancel_Click();

  /// False when the service did not take the account, which has been told.
  bool SetLocalAccount(const std::string& account);
  bool SetDomainAccount(const std::string& account);
  bool SetServiceAccount(const std::string& account);
  void TellLocalRights(const std::string& account, bool granted);
  void TellDomainRights(const std::string& account, bool granted);
  void StartService();

  /// Grants both rights, the second one also when the first one fails. True when neither failed.
  bool GrantRights(const std::string& computer, const std::string& account);
  bool GrantDomainRights(const std::string& account);
  /// A controller of the default domain; empty when none is found.
  std::string DomainController();
  void ClearPasswords();
  void Inform(const std::string& text);
  void Refuse(const std::string& text);

  modMain& main_;
  std::string domain_, computer_;
  /// Grows with each listing and at the end: a listing that another one overtook stops when it sees this.
  int listing_ = 0;
};

}  // namespace corvane
