#include "adapters/lab/LabServiceManager.h"

namespace corvane {

LabServiceManager::LabServiceManager(LabNetwork& network) : network_(network) {}

ServiceHandle LabServiceManager::OpenManager(std::uint32_t access) { return handles_.Open({"", access}); }

ServiceHandle LabServiceManager::OpenService(ServiceHandle manager, const std::string& name, std::uint32_t access) {
  const Opened* opened = handles_.Find(manager);
  if (!opened || !opened->Service.empty() || (opened->Access & service::Connect) == 0) return 0;
  const auto model = network_.Model();
  const LabService* found = model->FindService(name);
  if (!found || found->RefusesRead || (found->RefusesControl && access != service::ReadAccess)) return 0;
  return handles_.Open({found->Name, access});
}

bool LabServiceManager::QueryStatus(ServiceHandle handle, std::uint32_t& state) {
  const Opened* opened = handles_.Find(handle);
  if (!opened || (opened->Access & service::ReadAccess) == 0) return false;
  const auto model = network_.Model();
  const LabService* found = model->FindService(opened->Service);
  if (found) state = found->StateAt(network_.Now());
  return found != nullptr;
}

bool LabServiceManager::Start(ServiceHandle handle) {
  return Pass(handle, {service::Stopped, "start pending", "running", &LabService::StartMs});
}

bool LabServiceManager::Control(ServiceHandle handle, std::uint32_t code) {
  if (code != service::StopControl) return false;
  return Pass(handle, {service::Running, "stop pending", "stopped", &LabService::StopMs});
}

void LabServiceManager::Close(ServiceHandle handle) { handles_.Close(handle); }

bool LabServiceManager::ChangeConfig(ServiceHandle handle, std::uint32_t type, std::uint32_t start,
                                     std::uint32_t errorControl) {
  if (type != service::NoChange || start != service::AutoStart || errorControl != service::NoChange) return false;
  return Edit(handle, service::ChangeConfigAccess, [](const LabService&, const Setter& set) {
    set("Start", "automatic");
    return true;
  });
}

bool LabServiceManager::Pass(ServiceHandle handle, const Passage& passage) {
  return Edit(handle, service::ExecuteAccess, [&](const LabService& service, const Setter& set) {
    const std::int64_t now = network_.Now();
    if (service.StateAt(now) != passage.From) return false;
    // A wrong password is found out here and not when it is given.
    if (passage.From == service::Stopped && !service.LogonIsGood) return false;
    const int takes = service.*passage.Milliseconds;
    set("State", takes > 0 ? passage.Pending : passage.Final);
    set("Until", std::to_string(takes > 0 ? now + takes : 0));
    return true;
  });
}

bool LabServiceManager::Edit(ServiceHandle handle, std::uint32_t access,
                             const std::function<bool(const LabService&, const Setter&)>& edit) {
  const Opened* opened = handles_.Find(handle);
  if (!opened || opened->Service.empty() || (opened->Access & access) == 0) return false;
  return network_.Request([&](const LabModel& model, LabFile& file) {
    const LabService* found = model.FindService(opened->Service);
    if (!found) return false;
    const std::string section = "Service " + found->Name;
    return edit(*found, [&](const std::string& key, const std::string& value) { file.Set(section, key, value); });
  });
}

}  // namespace corvane
