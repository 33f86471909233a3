#include "notifications/frmNotificationsTest.h"

#include "core/SqlText.h"
#include "core/modMain.h"
#include "notifications/cvbTAPI.h"
#include "platform/Conversions.h"
#include "platform/ui/UiHost.h"

namespace corvane {
namespace {

constexpr int HelpTopic = 400;
// The screen is shown before the slow work starts.
constexpr int Pause = 1500;

}  // namespace

frmNotificationsTest::frmNotificationsTest(modMain& main, cvbTAPI& pager)
    : Form(main.Ui, "frmNotificationsTest"), main_(main), pager_(pager) {
  HelpContext = HelpTopic;
  Caption = "Test Notification";
  lblTestDetails.Caption = "Test Details:  ";
  cmdClose.Caption = "Close";
  cmdClose.Default = cmdClose.Cancel = true;
  cmdClose.Click = [this] { Unload(); };
  tmrTest.Interval = Pause;
  tmrTest.Enabled = false;
  tmrTest.Tick = [this] { tmrTest_Timer(); };
}

bool frmNotificationsTest::RunTest(const std::string& name) {
  const auto row = main_.Platform.Data.NewRecordset();
  row->Open("SELECT * FROM Notifications WHERE Name = '" + name + "'", *main_.ConfigConnection, CursorType::ForwardOnly,
            LockType::ReadOnly);
  if (row->Eof() && row->Bof()) return false;
  ways_ = static_cast<int>(Val(NullToEmpty(row->Field("TypesSupported"))));
  notification_ = ReadNotification(main_, name);
  lblNotificationName.Caption = "Notification Name:  " + ui::Literal(notification_.Name);
  tmrTest.Enabled = true;
  return true;
}

void frmNotificationsTest::tmrTest_Timer() {
  tmrTest.Enabled = false;
  NotificationTest test(main_, pager_, notification_);
  const auto has = [&](Notification::Way way) { return (ways_ & way) != 0; };
  if (has(Notification::Popup))
    Tell(test.SendPopup(), "Network popup message was sent...", "Network popup message could not be sent!");
  if (has(Notification::Email)) Tell(test.SendEmail(), "Email message was sent...", "Email message could not be sent!");
  if (has(Notification::Syslog))
    Tell(test.SendSyslog(), "Syslog or Listener Console message was sent...",
         "The Syslog or Listener Console message could not be sent to one or more Listener Console(s) or Syslog "
         "Servers!");
  if (has(Notification::Database) && test.IsInFile())
    Tell(test.StoreInAccess(), "Record placed in Access database successfully...",
         "Record could not be placed in Access database!");
  else if (has(Notification::Database))
    Tell(test.StoreInODBC(), "Record placed in ODBC source successfully...",
         "Record could not be placed in ODBC source!");
  if (has(Notification::Pager) && main_.SettingNumber("DataModemIndex") != 0)
    Tell(test.CallPager(), "Phone call to pager in progress...",
         "Phone call could not be placed!  The phone line may be in use or the modem may not be responding...");
}

// Each outcome is shown before the next way is tried.
void frmNotificationsTest::Tell(bool success, const char* good, const char* bad) {
  lblTestDetails.Caption += std::string("\n") + (success ? good : bad) + "\n";
  main_.Ui.Repaint();
}

// A call that has not ended yet is dropped.
void frmNotificationsTest::Form_Unload() {
  if (pager_.isConnected()) pager_.Disconnect();
}

}  // namespace corvane
