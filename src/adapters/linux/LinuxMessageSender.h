#pragma once

#include <chrono>
#include <functional>
#include <string>

#include "platform/MessageSender.h"

namespace corvane {

/// Sends over this machine's network. A thread of its own does the waiting. Results are 1 and 0.
class LinuxMessageSender : public MessageSender {
 public:
  struct Settings {
    /// What every call takes at the most.
    std::chrono::milliseconds Limit = std::chrono::seconds(30);
    /// Where other computers receive popups.
    int PopupPort = 139;
  };

  /// `whileWaiting` is called on the caller's thread, some 40 times a second, as long as a call waits.
  explicit LinuxMessageSender(std::function<void()> whileWaiting);
  LinuxMessageSender(std::function<void()> whileWaiting, Settings settings);

  int SendSMTPMessageAsyncCP(const std::string& server, bool serverIsAddress, const std::string& recipient,
                             const std::string& sender, const std::string& message, const std::string& tag,
                             int port) override;
  /// A refusal by the host counts as a failure when it comes within a quarter of a second.
  int SendSysLogMessage(const std::string& host, int port, bool hostIsAddress, const std::string& message,
                        const std::string& tag) override;
  int SendSysLogMessageAsync(const std::string& host, int port, bool hostIsAddress, const std::string& message,
                             const std::string& tag) override;
  /// The target is the name of a computer that receives messages over NetBIOS sessions, with or without a leading `\\`.
  int SendNetPopupAsync(const std::string& target, const std::string& message, const std::string& tag) override;

 private:
  int Wait(std::function<bool()> work) const;

  std::function<void()> whileWaiting_;
  Settings settings_;
};

}  // namespace corvane
