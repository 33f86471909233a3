#pragma once

#include <string>

#include "notifications/NotificationTest.h"
#include "platform/ui/Form.h"
#include "platform/ui/SimpleControls.h"

namespace corvane {

/// "Test Notification": sends one message in every way of a notification and tells how each of them went.
class frmNotificationsTest : public ui::Form {
 public:
  frmNotificationsTest(modMain& main, cvbTAPI& pager);

  ui::Label lblNotificationName{*this, "lblNotificationName"};
  ui::Label lblTestDetails{*this, "lblTestDetails"};
  ui::CommandButton cmdClose{*this, "cmdClose"};
  ui::Timer tmrTest{*this, "tmrTest"};

  /// Reads the notification and lets the test begin once the screen is shown. False when there is none of that name.
  bool RunTest(const std::string& name);

 protected:
  void Form_Unload() override;

 private:
  void tmrTest_Timer();
  void Tell(bool success, const char* good, const char* bad);

  modMain& main_;
  cvbTAPI& pager_;
  Notification notification_;
  /// The stored sum of the ways that it names.
  int ways_ = 0;
};

}  // namespace corvane
