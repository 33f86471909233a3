#include "adapters/lab/LabModel.h"

#include <algorithm>

#include "platform/Conversions.h"
#include "platform/ServiceManager.h"

namespace corvane {
namespace {

template <class Items, class Test>
auto FindIn(const Items& items, Test test) -> const typename Items::value_type* {
  const auto found = std::find_if(items.begin(), items.end(), test);
  return found == items.end() ? nullptr : &*found;
}

template <class Items>
auto FindByName(const Items& items, const std::string& name) {
  return FindIn(items, [&](const auto& item) { return SameText(item.Name, name); });
}

}  // namespace

const LabLog* LabComputer::FindLog(const std::string& name) const { return FindByName(Logs, name); }

std::uint32_t LabService::StateAt(std::int64_t now) const {
  if (Until == 0 || now < Until) return State;
  return State == service::StartPending ? service::Running : service::Stopped;
}

const LabComputer* LabModel::FindComputer(const std::string& name) const {
  if (name.empty()) return FindByName(Computers, LocalComputer);
  const std::string plain = name.starts_with("\\\\") ? name.substr(2) : name;
  if (const LabComputer* found = FindByName(Computers, plain)) return found;
  return FindIn(Computers, [&](const LabComputer& computer) {
    const LabDomain* domain = FindDomain(computer.Domain);
    return computer.Address == plain ||
           (!domain->DnsName.empty() && SameText(computer.Name + "." + domain->DnsName, plain));
  });
}

const LabDomain* LabModel::FindDomain(const std::string& name) const {
  return FindIn(Domains, [&](const LabDomain& domain) {
    return SameText(domain.Name, name) || (!domain.DnsName.empty() && SameText(domain.DnsName, name));
  });
}

const LabService* LabModel::FindService(const std::string& name) const { return FindByName(Services, name); }

const LabModem* LabModel::FindModem(std::uint32_t number) const {
  return FindIn(Modems, [&](const LabModem& modem) { return modem.Number == number; });
}

const LabComputer* LabModel::FindController(const std::string& domain) const {
  const LabDomain* wanted = FindDomain(domain);
  if (!wanted) return nullptr;
  return FindIn(Computers, [&](const LabComputer& computer) {
    return computer.Role == LabRole::Controller && computer.State != LabState::Off && computer.Domain == wanted->Name;
  });
}

const std::vector<std::string>& LabModel::AccountsOf(const LabComputer& computer) const {
  return computer.Role == LabRole::Controller ? FindDomain(computer.Domain)->Accounts : computer.Accounts;
}

std::string LabModel::FindAccount(const LabComputer& computer, const std::string& name) const {
  const std::size_t backslash = name.find('\\');
  if (backslash == name.npos) return "";
  const std::string place = name.substr(0, backslash), wanted = name.substr(backslash + 1);
  const bool isLocal = computer.Role == LabRole::Member && SameText(place, computer.Name);
  const LabDomain* domain = isLocal ? nullptr : FindDomain(place);
  if (!isLocal && (!domain || !Reaches(*FindDomain(computer.Domain), *domain))) return "";
  const std::vector<std::string>& accounts = isLocal ? computer.Accounts : domain->Accounts;
  const std::string* found = FindIn(accounts, [&](const std::string& account) { return SameText(account, wanted); });
  return found ? (isLocal ? computer.Name : domain->Name) + "\\" + *found : "";
}

bool LabModel::Reaches(const LabDomain& home, const LabDomain& other) const {
  return &home == &other ||
         FindIn(home.Trusts, [&](const std::string& trusted) { return FindDomain(trusted) == &other; }) != nullptr;
}

}  // namespace corvane
