#pragma once

#include <chrono>
#include <cstdint>

#include "platform/Ping.h"

namespace corvane {

/// ICMP echo over this machine's network, IPv4 and IPv6. Settings: the time that a reply may take, in milliseconds.
class LinuxPing : public Ping {
 public:
  explicit LinuxPing(std::chrono::milliseconds timeout = std::chrono::milliseconds(2000));

  /// Takes names, with or without a leading `\\`, and addresses. Raises 440 for a name that is not known, 70 when this
  /// user may not send echo requests, 75 when the request cannot be sent.
  PingReply Send(const std::string& host) override;

 private:
  std::chrono::milliseconds timeout_;
  std::uint16_t sequence_ = 0;
};

}  // namespace corvane
