#pragma once

#include <string>

#include "notifications/NotificationStore.h"

namespace corvane {

class cvbTAPI;
class modMain;

/// Sends one message with fixed contents in the ways of a notification. Each way tells by itself whether it worked, and
/// raises nothing.
class NotificationTest {
 public:
  NotificationTest(modMain& main, cvbTAPI& pager, Notification notification);

  bool IsInFile() const;

  bool SendPopup();
  /// To every recipient, also when one of them fails.
  bool SendEmail();
  /// To every server, also when one of them fails.
  bool SendSyslog();
  /// Puts a row into the table.
  bool StoreInAccess();
  bool StoreInODBC();
  /// Begins the call. A call under way is a failure.
  bool CallPager();

 private:
  std::string Message(const std::string& recipient, bool withTerminator);
  std::string SyslogMessage();

  modMain& main_;
  cvbTAPI& pager_;
  Notification notification_;
};

}  // namespace corvane
