#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "adapters/linux/Endpoint.h"
#include "adapters/linux/TimedSocket.h"

namespace corvane {

/// Brings a message to the screen of a computer: SMB messages of the core protocol over a
/// NetBIOS session (RFC 1001 and 1002) with the name under which the computer receives them. A message goes in blocks,
/// since a single one holds no more than 128 bytes.
class NetPopup {
 public:
  static constexpr std::size_t LongestText = 1600;

  /// Names are those of computers, without leading backslashes.
  NetPopup(std::string from, std::string to, std::chrono::milliseconds limit);

  /// True when the computer has taken the whole message. Of a text that is too long the beginning goes out. May take
  /// long when the computer's name must be looked up.
  bool Send(const Endpoint& computer, std::string_view text);

 private:
  bool OpenSession(const Endpoint& computer);
  bool SendPacket(std::uint8_t type, std::string_view body);
  std::optional<std::string> ReceivePacket(std::uint8_t type);
  std::optional<std::string> Request(std::uint8_t command, std::string_view words, std::string_view bytes);

  std::string from_, to_;
  TimedSocket socket_;
};

}  // namespace corvane
