#pragma once

#include <vector>

#include "adapters/lab/LabNetwork.h"
#include "platform/NetX.h"

namespace corvane {

/// The network helper over the lab network. Settings: the network.
class LabNetX : public NetX {
 public:
  explicit LabNetX(LabNetwork& network);

  /// Gives what is on the network now: computers that are off are not listed. Each name comes with true; the call
  /// behind the last one gives false and no name.
  bool EnumServers(const std::string& domain, std::string& name, std::uint32_t types, int mode) override;
  /// The last name comes with false, where the others come with true.
  bool EnumTrustedDomains(const std::string& controller, std::string& name, int mode) override;
  bool QueryOSVersion(const std::string& computer, int& major, int& minor) override;
  void GetDomainControllerName(const std::string& domain, std::string& name) override;
  /// Each name comes with true, as with the servers.
  bool EnumAccounts(const std::string& computer, std::string& name, int mode) override;
  /// Fails on a computer that is off or refuses, and for an account that it does not know.
  bool GrantRight(const std::string& computer, const std::string& right, const std::string& account) override;
  /// Fails as a grant does, and for every computer but the local one, whose services are the only ones. A password is
  /// right when it ends with an exclamation mark; only whether it was right is kept.
  bool SetServiceAccount(const std::string& computer, const std::string& service, const std::string& account,
                         const std::string& password) override;

 private:
  struct Listing {
    std::vector<std::string> Names;
    std::size_t Next = 0;

    std::string Take();
    bool More() const { return Next < Names.size(); }
  };

  std::vector<std::string> Servers(const std::string& domain, std::uint32_t types);
  std::vector<std::string> Trusts(const std::string& controller);
  std::vector<std::string> Accounts(const std::string& computer);

  LabNetwork& network_;
  Listing servers_, trusts_, accounts_;
};

}  // namespace corvane
