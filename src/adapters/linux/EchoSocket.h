#pragma once

#include <sys/socket.h>

#include <array>
#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "adapters/linux/Descriptor.h"

namespace corvane {

/// A socket for ICMP echo requests and their replies (RFC 792; RFC 4443 for IPv6).
class EchoSocket {
 public:
  static constexpr std::size_t DataBytes = 64;

  /// Opens a datagram ICMP socket, or a raw one where the machine does not allow that. `family` is AF_INET or AF_INET6.
  /// Raises 70 when it allows neither, 75 for any other failure.
  explicit EchoSocket(int family);

  /// Sends one request. Raises 75 with the system's reason when it cannot go out.
  void Send(const sockaddr* to, socklen_t length, std::uint16_t sequence);
  /// Waits for the reply to the request of this number. The replier's address, nothing after `timeout`.
  std::optional<std::string> Await(std::uint16_t sequence, std::chrono::milliseconds timeout);

 private:
  std::string Request(std::uint16_t sequence) const;
  bool IsReply(std::string_view packet, std::uint16_t sequence) const;
  std::optional<std::string> ReceiveReply(std::uint16_t sequence);

  int family_;
  bool raw_ = false;
  std::uint16_t identifier_;
  std::array<char, DataBytes> data_;
  Descriptor socket_;
};

}  // namespace corvane
