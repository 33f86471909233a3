#include "adapters/lab/LabDirectoryProvider.h"

#include "adapters/lab/LabErrors.h"
#include "platform/Conversions.h"
#include "platform/RegistryStore.h"

namespace corvane {
namespace {

constexpr std::string_view Scheme = "WinNT://";

// The names of a path, domain first; none for a path of another provider.
std::vector<std::string> NamesOf(const std::string& path) {
  std::vector<std::string> names;
  if (!SameText(path.substr(0, Scheme.size()), Scheme)) return names;
  for (std::size_t at = Scheme.size(); at <= path.size();) {
    const std::size_t end = std::min(path.find('/', at), path.size());
    names.push_back(path.substr(at, end - at));
    at = end + 1;
  }
  return names;
}

}  // namespace

LabDirectoryProvider::LabDirectoryProvider(LabNetwork& network) : network_(network) {}

const LabDomain& LabDirectoryProvider::Bind(const LabModel& model, const std::string& domain) {
  const LabDomain* found = model.FindDomain(domain);
  if (found && found->IsWorkgroup) return *found;
  const LabComputer* controller = model.FindController(domain);
  if (!found || !controller) RaiseUnlessOk(registry::NetworkPathNotFound);
  LabComputer answering;
  RaiseUnlessOk(network_.Contact(controller->Name, answering));
  return *found;
}

std::vector<std::string> LabDirectoryProvider::Children(const std::string& path, const std::string& objectClass) {
  const std::vector<std::string> names = NamesOf(path);
  if (names.size() != 1) RaiseNoObject();
  const auto model = network_.Model();
  const LabDomain& domain = Bind(*model, names[0]);
  std::vector<std::string> children;
  for (const LabComputer& computer : model->Computers)
    if (SameText(objectClass, "computer") && computer.Domain == domain.Name &&
        (!domain.IsWorkgroup || computer.State != LabState::Off))
      children.push_back(computer.Name);
  return children;
}

long LabDirectoryProvider::UserFlags(const std::string& path) {
  const std::vector<std::string> names = NamesOf(path);
  if (names.size() != 2) RaiseNoObject();
  const auto model = network_.Model();
  const LabDomain& domain = Bind(*model, names[0]);
  for (const LabComputer& computer : model->Computers)
    if (!domain.IsWorkgroup && computer.Domain == domain.Name && SameText(computer.Name + "$", names[1]))
      return computer.Role == LabRole::Controller ? ControllerAccount : MemberAccount;
  RaiseNoObject();
}

}  // namespace corvane
