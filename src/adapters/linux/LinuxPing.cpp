#include "adapters/linux/LinuxPing.h"

#include <netdb.h>

#include <memory>

#include "adapters/linux/EchoSocket.h"
#include "platform/RuntimeError.h"

namespace corvane {
namespace {

using Addresses = std::unique_ptr<addrinfo, decltype(&::freeaddrinfo)>;

Addresses Resolve(const std::string& host) {
  addrinfo wanted{};
  wanted.ai_socktype = SOCK_DGRAM;
  wanted.ai_flags = AI_ADDRCONFIG;
  addrinfo* found = nullptr;
  const int status = ::getaddrinfo(host.c_str(), nullptr, &wanted, &found);
  if (status != 0) throw RuntimeError(errors::AutomationError, host + " cannot be resolved: " + ::gai_strerror(status));
  return {found, &::freeaddrinfo};
}

}  // namespace

LinuxPing::LinuxPing(std::chrono::milliseconds timeout) : timeout_(timeout) {}

PingReply LinuxPing::Send(const std::string& host) {
  using Clock = std::chrono::steady_clock;
  const Addresses address = Resolve(host.starts_with("\\\\") ? host.substr(2) : host);
  EchoSocket socket(address->ai_family);
  const Clock::time_point sent = Clock::now();
  socket.Send(address->ai_addr, address->ai_addrlen, ++sequence_);
  const auto replier = socket.Await(sequence_, timeout_);
  if (!replier) return {};
  return {*replier,
          static_cast<int>(std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - sent).count())};
}

}  // namespace corvane
