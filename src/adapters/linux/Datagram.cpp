#include "adapters/linux/Datagram.h"

#include <poll.h>
#include <sys/socket.h>

#include "adapters/linux/Descriptor.h"

namespace corvane {
namespace {

constexpr int MillisecondsForRefusal = 250;

// Only a connected socket is told when the other machine reports that nobody listens.
bool SendTo(const addrinfo& address, std::string_view bytes) {
  const Descriptor socket(::socket(address.ai_family, SOCK_DGRAM | SOCK_CLOEXEC, 0));
  if (::connect(socket.Get(), address.ai_addr, address.ai_addrlen) != 0) return false;
  if (::send(socket.Get(), bytes.data(), bytes.size(), 0) != static_cast<ssize_t>(bytes.size())) return false;
  pollfd refusal{socket.Get(), 0, 0};
  return ::poll(&refusal, 1, MillisecondsForRefusal) <= 0;
}

}  // namespace

bool SendDatagram(const Endpoint& to, std::string_view bytes) {
  const HostAddresses addresses = to.Resolve(SOCK_DGRAM);
  for (const addrinfo* address = addresses.get(); address; address = address->ai_next)
    if (SendTo(*address, bytes)) return true;
  return false;
}

}  // namespace corvane
