#pragma once

#include <string>

namespace corvane {

/// The library that sends notifications. Every call waits until the message was taken or refused, 30 seconds at the
/// most, and gives a number: 1 or more when it was taken, below 1 on any failure. `tag` is the library's own affair.
/// Texts are UTF-8 and go out in the ANSI code page.
class MessageSender {
 public:
  virtual ~MessageSender() = default;

  /// Hands a whole message (header, empty line, body, and the line with a dot that ends it; lines end with CR LF) to a
  /// mail server (RFC 5321). One recipient.
  virtual int SendSMTPMessageAsyncCP(const std::string& server, bool serverIsAddress, const std::string& recipient,
                                     const std::string& sender, const std::string& message, const std::string& tag,
                                     int port) = 0;
  /// Sends one syslog datagram as it stands (RFC 3164). That nobody received it can not always be told.
  virtual int SendSysLogMessage(const std::string& host, int port, bool hostIsAddress, const std::string& message,
                                const std::string& tag) = 0;
  virtual int SendSysLogMessageAsync(const std::string& host, int port, bool hostIsAddress, const std::string& message,
                                     const std::string& tag) = 0;
  /// Shows a message on the screen of a computer.
  virtual int SendNetPopupAsync(const std::string& target, const std::string& message, const std::string& tag) = 0;
};

}  // namespace corvane
