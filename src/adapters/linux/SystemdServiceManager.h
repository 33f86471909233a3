#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <string>

#include "adapters/linux/SystemdBus.h"
#include "platform/ServiceManager.h"

namespace corvane {

/// The services that systemd manages on this machine. Settings: the bus ("system" or a D-Bus address); the unit that a
/// service's name stands for, empty for none; the time that a reply may take. Each manager handle is a connection of
/// its own, which lives as long as the handles that came from it.
class SystemdServiceManager : public ServiceManager {
 public:
  using UnitNames = std::function<std::string(const std::string& service)>;

  SystemdServiceManager(std::string bus, UnitNames units,
                        std::chrono::milliseconds timeout = std::chrono::milliseconds(5000));

  ServiceHandle OpenManager(std::uint32_t access) override;
  /// 0 as well for a service without a unit and for a unit whose file is missing. Whether this user may start or change
  /// a service shows only when it is tried.
  ServiceHandle OpenService(ServiceHandle manager, const std::string& name, std::uint32_t access) override;
  bool QueryStatus(ServiceHandle handle, std::uint32_t& state) override;
  bool Start(ServiceHandle handle) override;
  /// Knows the stop.
  bool Control(ServiceHandle handle, std::uint32_t code) override;
  /// Knows the automatic start; all else has to stay as it is.
  bool ChangeConfig(ServiceHandle handle, std::uint32_t type, std::uint32_t start, std::uint32_t errorControl) override;
  void Close(ServiceHandle handle) override;

 private:
  struct Opened {
    std::shared_ptr<SystemdBus> Bus;
    std::uint32_t Access = 0;
    /// Name and object of the unit; empty for the manager itself.
    std::string Unit, Object;
  };

  ServiceHandle Keep(Opened opened);
  /// What stands behind a handle that was opened with the access.
  const Opened* Find(ServiceHandle handle, std::uint32_t access) const;

  std::string bus_;
  UnitNames units_;
  std::chrono::milliseconds timeout_;
  std::map<ServiceHandle, Opened> open_;
  ServiceHandle last_ = 0;
};

}  // namespace corvane
