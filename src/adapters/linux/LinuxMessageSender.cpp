#include "adapters/linux/LinuxMessageSender.h"

#include <utility>

#include "adapters/linux/Datagram.h"
#include "adapters/linux/Endpoint.h"
#include "adapters/linux/LinuxSystem.h"
#include "adapters/linux/MailDelivery.h"
#include "adapters/linux/NetPopup.h"
#include "adapters/linux/WaitForWork.h"
#include "platform/CodePage.h"

namespace corvane {

LinuxMessageSender::LinuxMessageSender(std::function<void()> whileWaiting)
    : LinuxMessageSender(std::move(whileWaiting), Settings()) {}

LinuxMessageSender::LinuxMessageSender(std::function<void()> whileWaiting, Settings settings)
    : whileWaiting_(std::move(whileWaiting)), settings_(settings) {}

int LinuxMessageSender::Wait(std::function<bool()> work) const {
  return WaitForWork(std::move(work), settings_.Limit, whileWaiting_) ? 1 : 0;
}

int LinuxMessageSender::SendSMTPMessageAsyncCP(const std::string& server, bool serverIsAddress,
                                               const std::string& recipient, const std::string& sender,
                                               const std::string& message, const std::string&, int port) {
  const auto endpoint = Endpoint::Of(server, serverIsAddress, port);
  if (!endpoint) return 0;
  const MailDelivery mail{*endpoint, AnsiBytes(sender), AnsiBytes(recipient), AnsiBytes(message)};
  return Wait([mail, limit = settings_.Limit] { return mail.Deliver(limit); });
}

int LinuxMessageSender::SendSysLogMessage(const std::string& host, int port, bool hostIsAddress,
                                          const std::string& message, const std::string&) {
  const auto endpoint = Endpoint::Of(host, hostIsAddress, port);
  if (!endpoint) return 0;
  return Wait([to = *endpoint, bytes = AnsiBytes(message)] { return SendDatagram(to, bytes); });
}

int LinuxMessageSender::SendSysLogMessageAsync(const std::string& host, int port, bool hostIsAddress,
                                               const std::string& message, const std::string& tag) {
  return SendSysLogMessage(host, port, hostIsAddress, message, tag);
}

int LinuxMessageSender::SendNetPopupAsync(const std::string& target, const std::string& message, const std::string&) {
  const std::size_t name = target.find_first_not_of("\\ ");
  const auto endpoint = Endpoint::Of(name == target.npos ? "" : target.substr(name), false, settings_.PopupPort);
  if (!endpoint) return 0;
  const std::string from = AnsiBytes(LinuxSystem().ComputerName().value_or(""));
  return Wait([to = *endpoint, from, text = AnsiBytes(message), limit = settings_.Limit] {
    return NetPopup(from, AnsiBytes(to.Host), limit).Send(to, text);
  });
}

}  // namespace corvane
