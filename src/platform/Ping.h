#pragma once

#include <string>

namespace corvane {

/// Outcome of one echo request. An empty address: no reply came in time.
struct PingReply {
  std::string Address;
  int Milliseconds = 0;
};

/// ICMP echo (RFC 792).
class Ping {
 public:
  virtual ~Ping() = default;

  /// Sends one echo request with 64 bytes of data and waits for its reply. Raises a `RuntimeError` when the name is not
  /// known or the request cannot be sent.
  virtual PingReply Send(const std::string& host) = 0;
};

}  // namespace corvane
