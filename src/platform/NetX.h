#pragma once

#include <cstdint>
#include <string>

namespace corvane {

/// The network helper: what other computers and domains tell about themselves. No leading `\\` in names that come out.
class NetX {
 public:
  // Type masks of the server enumeration.
  static constexpr std::uint32_t DomainController = 8;
  static constexpr std::uint32_t WindowsNT = 4096;
  // Modes of an enumeration.
  static constexpr int Continue = 0;
  static constexpr int Begin = 1;

  virtual ~NetX() = default;

  /// The next server of a domain that is of one of the masked types. True while names come; the call that gives false
  /// may still leave a name.
  virtual bool EnumServers(const std::string& domain, std::string& name, std::uint32_t types, int mode) = 0;
  /// The next domain trusted by a controller, named with its leading `\\`. Each name carries one character too many at
  /// its end. True while names come; the call that gives false may still leave a name.
  virtual bool EnumTrustedDomains(const std::string& controller, std::string& name, int mode) = 0;
  /// Version of a computer's system. False on failure, with both numbers left at 0.
  virtual bool QueryOSVersion(const std::string& computer, int& major, int& minor) = 0;
};

}  // namespace corvane
