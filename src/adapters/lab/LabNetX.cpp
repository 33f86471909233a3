#include "adapters/lab/LabNetX.h"

#include "platform/RegistryStore.h"

namespace corvane {

LabNetX::LabNetX(LabNetwork& network) : network_(network) {}

std::string LabNetX::Listing::Take() { return More() ? Names[Next++] : ""; }

bool LabNetX::EnumServers(const std::string& domain, std::string& name, std::uint32_t types, int mode) {
  if (mode == Begin) servers_ = {Servers(domain, types), 0};
  const bool found = servers_.More();
  name = servers_.Take();
  return found;
}

bool LabNetX::EnumTrustedDomains(const std::string& controller, std::string& name, int mode) {
  if (mode == Begin) trusts_ = {Trusts(controller), 0};
  name = trusts_.Take();
  return trusts_.More();
}

bool LabNetX::QueryOSVersion(const std::string& computer, int& major, int& minor) {
  LabComputer found;
  const bool answers = network_.Contact(computer, found) == registry::Ok;
  major = answers ? found.Major : 0;
  minor = answers ? found.Minor : 0;
  return answers;
}

std::vector<std::string> LabNetX::Servers(const std::string& domain, std::uint32_t types) {
  std::vector<std::string> names;
  const auto model = network_.Model();
  const LabDomain* wanted = model->FindDomain(domain);
  for (const LabComputer& computer : model->Computers) {
    const std::uint32_t type = WindowsNT | (computer.Role == LabRole::Controller ? DomainController : 0);
    if (wanted && computer.Domain == wanted->Name && computer.State != LabState::Off && (type & types) != 0)
      names.push_back(computer.Name);
  }
  return names;
}

std::vector<std::string> LabNetX::Trusts(const std::string& controller) {
  LabComputer found;
  if (network_.Contact(controller, found) != registry::Ok || found.Role != LabRole::Controller) return {};
  const auto model = network_.Model();
  const LabDomain* domain = model->FindDomain(found.Domain);
  if (!domain) return {};
  std::vector<std::string> names = domain->Trusts;
  // The helper counts the final zero of its texts into their length; callers cut it.
  for (std::string& name : names) name.push_back('\0');
  return names;
}

}  // namespace corvane
