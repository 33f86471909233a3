#include "adapters/lab/LabServiceManager.h"

#include "platform/RuntimeError.h"

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

bool LabServiceManager::Pass(ServiceHandle handle, const Passage& passage) {
  const Opened* opened = handles_.Find(handle);
  if (!opened || opened->Service.empty() || (opened->Access & service::ExecuteAccess) == 0) return false;
  try {
    return network_.Change([&](const LabModel& model, LabFile& file) {
      const std::int64_t now = network_.Now();
      const LabService* found = model.FindService(opened->Service);
      if (!found || found->StateAt(now) != passage.From) return false;
      const int takes = found->*passage.Milliseconds;
      const std::string section = "Service " + found->Name;
      file.Set(section, "State", takes > 0 ? passage.Pending : passage.Final);
      file.Set(section, "Until", std::to_string(takes > 0 ? now + takes : 0));
      return true;
    });
  } catch (const RuntimeError&) {
    // A lab file that cannot be written is a request that failed, as it is with the real manager.
    return false;
  }
}

}  // namespace corvane
