#include "adapters/lab/LabNetX.h"

#include <algorithm>

#include "platform/Conversions.h"
#include "platform/RegistryStore.h"

namespace corvane {
namespace {

bool IsRight(const std::string& name) {
  const auto isLetter = [](char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); };
  return name.starts_with("Se") && std::all_of(name.begin(), name.end(), isLetter);
}

}  // namespace

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

void LabNetX::GetDomainControllerName(const std::string& domain, std::string& name) {
  const auto model = network_.Model();
  const LabComputer* controller = model->FindController(domain);
  network_.Wait(controller ? controller->DelayMs : model->TimeoutMs);
  name = controller ? controller->Name : "";
}

bool LabNetX::EnumAccounts(const std::string& computer, std::string& name, int mode) {
  if (mode == Begin) accounts_ = {Accounts(computer), 0};
  const bool found = accounts_.More();
  name = accounts_.Take();
  return found;
}

bool LabNetX::GrantRight(const std::string& computer, const std::string& right, const std::string& account) {
  LabComputer found;
  if (!IsRight(right) || network_.Contact(computer, found) != registry::Ok) return true;
  return !network_.Request([&](const LabModel& model, LabFile& file) {
    const LabComputer* target = model.FindComputer(found.Name);
    const std::string name = target ? model.FindAccount(*target, account) : "";
    if (name.empty()) return false;
    std::string holders;
    for (const LabRight& held : target->Rights)
      if (SameText(held.Name, right))
        for (const std::string& holder : held.Holders)
          if (!SameText(holder, name)) holders += holder + ", ";
    file.Set("Computer " + target->Name, "Right " + right, holders + name);
    return true;
  });
}

bool LabNetX::SetServiceAccount(const std::string& computer, const std::string& service, const std::string& account,
                                const std::string& password) {
  LabComputer found;
  if (network_.Contact(computer, found) != registry::Ok) return true;
  return !network_.Request([&](const LabModel& model, LabFile& file) {
    const LabComputer* local = model.FindComputer("");
    const LabService* target = model.FindService(service);
    const std::string name = local ? model.FindAccount(*local, account) : "";
    if (!target || target->RefusesControl || name.empty() || !SameText(found.Name, local->Name)) return false;
    file.Set("Service " + target->Name, "Account", name);
    file.Set("Service " + target->Name, "Logon", password.ends_with('!') ? "good" : "bad");
    return true;
  });
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

std::vector<std::string> LabNetX::Accounts(const std::string& computer) {
  LabComputer found;
  if (network_.Contact(computer, found) != registry::Ok) return {};
  return network_.Model()->AccountsOf(found);
}

}  // namespace corvane
