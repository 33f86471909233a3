#include "adapters/linux/SystemdServiceManager.h"

#include <utility>

namespace corvane {
namespace {

// A unit that reads its settings anew goes on running meanwhile.
constexpr std::pair<const char*, std::uint32_t> States[] = {
    {"inactive", service::Stopped},        {"failed", service::Stopped},           {"maintenance", service::Stopped},
    {"activating", service::StartPending}, {"deactivating", service::StopPending}, {"active", service::Running},
    {"reloading", service::Running},       {"refreshing", service::Running},
};

}  // namespace

SystemdServiceManager::SystemdServiceManager(std::string bus, UnitNames units, std::chrono::milliseconds timeout)
    : bus_(std::move(bus)), units_(std::move(units)), timeout_(timeout) {}

ServiceHandle SystemdServiceManager::OpenManager(std::uint32_t access) {
  std::shared_ptr<SystemdBus> bus = SystemdBus::Connect(bus_, timeout_);
  return bus ? Keep({std::move(bus), access, "", ""}) : 0;
}

ServiceHandle SystemdServiceManager::OpenService(ServiceHandle manager, const std::string& name, std::uint32_t access) {
  const Opened* opened = Find(manager, service::Connect);
  const std::string unit = opened && opened->Unit.empty() ? units_(name) : "";
  if (unit.empty()) return 0;
  const auto object = opened->Bus->LoadUnit(unit);
  if (!object) return 0;
  const auto loadState = opened->Bus->UnitProperty(*object, "LoadState");
  if (!loadState || *loadState == "not-found") return 0;
  return Keep({opened->Bus, access, unit, *object});
}

bool SystemdServiceManager::QueryStatus(ServiceHandle handle, std::uint32_t& state) {
  const Opened* opened = Find(handle, service::ReadAccess);
  if (!opened) return false;
  const auto activeState = opened->Bus->UnitProperty(opened->Object, "ActiveState");
  for (const auto& [name, number] : States) {
    if (activeState != name) continue;
    state = number;
    return true;
  }
  return false;
}

bool SystemdServiceManager::Start(ServiceHandle handle) {
  const Opened* opened = Find(handle, service::ExecuteAccess);
  return opened && opened->Bus->StartUnit(opened->Unit);
}

bool SystemdServiceManager::Control(ServiceHandle handle, std::uint32_t code) {
  const Opened* opened = Find(handle, service::ExecuteAccess);
  return opened && code == service::StopControl && opened->Bus->StopUnit(opened->Unit);
}

bool SystemdServiceManager::ChangeConfig(ServiceHandle handle, std::uint32_t type, std::uint32_t start,
                                         std::uint32_t errorControl) {
  if (type != service::NoChange || start != service::AutoStart || errorControl != service::NoChange) return false;
  const Opened* opened = Find(handle, service::ChangeConfigAccess);
  return opened && opened->Bus->EnableUnit(opened->Unit);
}

void SystemdServiceManager::Close(ServiceHandle handle) { open_.erase(handle); }

ServiceHandle SystemdServiceManager::Keep(Opened opened) {
  open_.emplace(++last_, std::move(opened));
  return last_;
}

const SystemdServiceManager::Opened* SystemdServiceManager::Find(ServiceHandle handle, std::uint32_t access) const {
  const auto found = open_.find(handle);
  return found != open_.end() && (found->second.Access & access) != 0 ? &found->second : nullptr;
}

}  // namespace corvane
