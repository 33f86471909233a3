#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace corvane {

/// Named pipes of local services.
class NamedPipes {
 public:
  virtual ~NamedPipes() = default;

  /// Connects to a pipe such as `\\.\pipe\corvanesyslog`, writes the message, reads a reply of up to `replySize` bytes,
  /// and closes. False when the pipe is not there or the other end does not answer within the milliseconds.
  virtual bool Call(const std::string& pipe, std::string_view message, std::string& reply, std::size_t replySize,
                    int timeout) = 0;
};

}  // namespace corvane
