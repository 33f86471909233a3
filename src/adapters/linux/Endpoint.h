#pragma once

#include <netdb.h>

#include <memory>
#include <optional>
#include <string>

namespace corvane {

using HostAddresses = std::unique_ptr<addrinfo, decltype(&::freeaddrinfo)>;

/// A port of a host, which is given by its name or address.
struct Endpoint {
  std::string Host;
  int Port = 0;

  /// Takes a host as it was typed. An address is read as the C library's `inet_addr` reads it: leading zeros are octal,
  /// and with fewer than four parts the last one fills the rest. Nothing when there is no such host or port.
  static std::optional<Endpoint> Of(const std::string& typed, bool isAddress, int port);

  /// All addresses, for sockets of this type; none when the name is not known. May take long.
  HostAddresses Resolve(int socketType) const;
};

}  // namespace corvane
