#pragma once

#include <string_view>

#include "adapters/linux/Endpoint.h"

namespace corvane {

/// Sends one UDP datagram to the first of the host's addresses that does not refuse it. A refusal is seen when it comes
/// within a quarter of a second. May take long when the host's name must be looked up.
bool SendDatagram(const Endpoint& to, std::string_view bytes);

}  // namespace corvane
