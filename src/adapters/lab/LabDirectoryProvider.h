#pragma once

#include "adapters/lab/LabNetwork.h"
#include "platform/DirectoryProvider.h"

namespace corvane {

/// The `WinNT://` directory of the lab network. Settings: the network. Raises 440 for a path that cannot be bound: a
/// domain without a controller that answers, an account that is not there.
class LabDirectoryProvider : public DirectoryProvider {
 public:
  // Kinds of machine accounts among the user flags.
  static constexpr long MemberAccount = 4096;
  static constexpr long ControllerAccount = 8192;

  explicit LabDirectoryProvider(LabNetwork& network);

  /// A domain lists every computer account, a workgroup what is on the network now.
  std::vector<std::string> Children(const std::string& path, const std::string& objectClass) override;
  /// A workgroup has no machine accounts.
  long UserFlags(const std::string& path) override;

 private:
  const LabDomain& Bind(const LabModel& model, const std::string& domain);

  LabNetwork& network_;
};

}  // namespace corvane
