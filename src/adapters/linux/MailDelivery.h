#pragma once

#include <chrono>
#include <string>

#include "adapters/linux/Endpoint.h"

namespace corvane {

/// A message on its way to a mail server (RFC 5321). All texts are bytes as they go out.
struct MailDelivery {
  Endpoint Server;
  std::string Sender, Recipient;
  /// Header and body with the line of a dot that ends them. Lines that begin with a dot are not yet stuffed.
  std::string Message;

  /// True when the server has taken the responsibility for the message. Blocks for about the limit at the most.
  bool Deliver(std::chrono::milliseconds limit) const;
};

}  // namespace corvane
