#include "adapters/linux/Endpoint.h"

#include <arpa/inet.h>

#include <array>

#include "platform/Conversions.h"

namespace corvane {
namespace {

constexpr int LastPort = 65535;

std::string DottedAddress(const std::string& typed) {
  const in_addr address{::inet_addr(typed.c_str())};
  std::array<char, INET_ADDRSTRLEN> text{};
  if (address.s_addr == INADDR_NONE || !::inet_ntop(AF_INET, &address, text.data(), text.size())) return {};
  return text.data();
}

}  // namespace

std::optional<Endpoint> Endpoint::Of(const std::string& typed, bool isAddress, int port) {
  std::string host = Trim(typed);
  if (isAddress) host = DottedAddress(host);
  if (host.empty() || port < 1 || port > LastPort) return std::nullopt;
  return Endpoint{host, port};
}

HostAddresses Endpoint::Resolve(int socketType) const {
  addrinfo wanted{};
  wanted.ai_socktype = socketType;
  addrinfo* found = nullptr;
  if (::getaddrinfo(Host.c_str(), std::to_string(Port).c_str(), &wanted, &found) != 0) found = nullptr;
  return {found, &::freeaddrinfo};
}

}  // namespace corvane
