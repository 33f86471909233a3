#pragma once

#include <filesystem>

#include "platform/NamedPipes.h"

namespace corvane {

/// Pipes as stream sockets of this machine: `\\.\pipe\NAME` is the socket NAME in a folder. The service behind it
/// reads the message from a connection, writes its reply and closes.
class LinuxNamedPipes : public NamedPipes {
 public:
  explicit LinuxNamedPipes(std::filesystem::path folder);

  /// The reply is at an end when it has `replySize` bytes or the service closes. False without any byte of it, and for
  /// pipes of other computers.
  bool Call(const std::string& pipe, std::string_view message, std::string& reply, std::size_t replySize,
            int timeout) override;

 private:
  std::filesystem::path folder_;
};

}  // namespace corvane
