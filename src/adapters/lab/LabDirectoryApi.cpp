#include "adapters/lab/LabDirectoryApi.h"

#include "adapters/lab/LabErrors.h"

namespace corvane {

LabDirectoryApi::LabDirectoryApi(LabNetwork& network) : network_(network) {}

std::string LabDirectoryApi::DsGetFlatDCName(const std::string& domain) {
  const auto model = network_.Model();
  const LabComputer* controller = model->FindController(domain);
  network_.Wait(controller ? controller->DelayMs : model->TimeoutMs);
  return controller ? "\\\\" + controller->Name : "";
}

std::string LabDirectoryApi::DsGetDomainTrustInfo(const std::string& server, int flags, int index) {
  const std::vector<std::string> domains = Domains(server, flags);
  if (flags == PrimaryDomain && !domains.empty()) return domains.front();
  return index >= 1 && static_cast<std::size_t>(index) <= domains.size() ? domains[static_cast<std::size_t>(index) - 1]
                                                                         : "";
}

int LabDirectoryApi::DsGetNumberOfTrusts(const std::string& server, int flags) {
  return static_cast<int>(Domains(server, flags).size());
}

std::vector<std::string> LabDirectoryApi::Domains(const std::string& server, int flags) {
  LabComputer computer;
  RaiseUnlessOk(network_.Contact(server, computer));
  const auto model = network_.Model();
  const LabDomain* domain = model->FindDomain(computer.Domain);
  if (!domain || domain->IsWorkgroup) return {};
  if (flags == PrimaryDomain) return {domain->Name};
  return flags == DirectlyTrusted ? domain->Trusts : std::vector<std::string>();
}

}  // namespace corvane
