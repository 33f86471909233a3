#pragma once

#include "adapters/lab/LabNetwork.h"
#include "platform/DirectoryApi.h"

namespace corvane {

/// Controllers and trusts of the lab network. Settings: the network.
class LabDirectoryApi : public DirectoryApi {
 public:
  explicit LabDirectoryApi(LabNetwork& network);

  /// With leading `\\`.
  std::string DsGetFlatDCName(const std::string& domain) override;
  /// Raises 440 for a server that does not answer or refuses. Empty behind the last domain and in a workgroup.
  std::string DsGetDomainTrustInfo(const std::string& server, int flags, int index) override;
  int DsGetNumberOfTrusts(const std::string& server, int flags) override;

 private:
  std::vector<std::string> Domains(const std::string& server, int flags);

  LabNetwork& network_;
};

}  // namespace corvane
