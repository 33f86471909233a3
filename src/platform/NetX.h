#pragma once

#include <cstdint>
#include <string>

namespace corvane {

/// The network helper: what other computers and domains tell about themselves, and who may do what on them. No leading
/// `\\` in names that come out; computers are named with or without it.
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

  /// Name of a controller of the domain; empty when none can be found.
  virtual void GetDomainControllerName(const std::string& domain, std::string& name) = 0;
  /// The next account that a computer keeps, without the name of the computer or domain: on a controller those of its
  /// domain. True while names come; the call that gives false may still leave a name.
  virtual bool EnumAccounts(const std::string& computer, std::string& name, int mode) = 0;
  /// Grants a user right, such as `SeTcbPrivilege`, on a computer to an account `DOMAIN\Account` or `COMPUTER\Account`.
  /// True on failure.
  virtual bool GrantRight(const std::string& computer, const std::string& right, const std::string& account) = 0;
  /// Has a service of a computer log on with an account from its next start on. The password is taken as it is given: a
  /// wrong one shows when the service is started. True on failure.
  virtual bool SetServiceAccount(const std::string& computer, const std::string& service, const std::string& account,
                                 const std::string& password) = 0;
};

}  // namespace corvane
