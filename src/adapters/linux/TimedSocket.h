#pragma once

#include <sys/socket.h>

#include <chrono>
#include <string>
#include <string_view>

#include "adapters/linux/Descriptor.h"

namespace corvane {

/// A stream socket whose operations all end at one deadline. None raises a signal when the other end is gone.
class TimedSocket {
 public:
  explicit TimedSocket(std::chrono::milliseconds limit) : deadline_(Clock::now() + limit) {}

  /// False when nobody takes the connection in time. May be called again with another address.
  bool Connect(const sockaddr* to, socklen_t length);
  /// False when not all was written in time.
  bool Send(std::string_view bytes);
  /// So many bytes; fewer when the other end closes, fails or is silent until the deadline.
  std::string Receive(std::size_t size);

 private:
  using Clock = std::chrono::steady_clock;

  bool LimitTime(int option);

  Clock::time_point deadline_;
  Descriptor socket_;
};

}  // namespace corvane
