#pragma once

#include <functional>
#include <string>

#include "adapters/lab/LabHandles.h"
#include "adapters/lab/LabNetwork.h"
#include "platform/ServiceManager.h"

namespace corvane {

/// The services of the lab's local computer. Settings: the network. A start or stop writes the pending state into the
/// lab file; it turns into the final one by itself when the service's time has passed.
class LabServiceManager : public ServiceManager {
 public:
  explicit LabServiceManager(LabNetwork& network);

  ServiceHandle OpenManager(std::uint32_t access) override;
  ServiceHandle OpenService(ServiceHandle manager, const std::string& name, std::uint32_t access) override;
  bool QueryStatus(ServiceHandle handle, std::uint32_t& state) override;
  /// Fails for a service that is not stopped, and for one whose account was given with a wrong password.
  bool Start(ServiceHandle handle) override;
  /// Knows the stop, which fails for a service that is not running.
  bool Control(ServiceHandle handle, std::uint32_t code) override;
  /// Knows the automatic start; all else has to stay as it is.
  bool ChangeConfig(ServiceHandle handle, std::uint32_t type, std::uint32_t start, std::uint32_t errorControl) override;
  void Close(ServiceHandle handle) override;
  std::size_t OpenHandles() const { return handles_.Count(); }

 private:
  struct Opened {
    /// Empty for the manager itself.
    std::string Service;
    std::uint32_t Access = 0;
  };
  /// Writes a key of the service's section.
  using Setter = std::function<void(const std::string& key, const std::string& value)>;
  /// A way from one lasting state over a pending one to the other.
  struct Passage {
    std::uint32_t From;
    const char *Pending, *Final;
    int LabService::*Milliseconds;
  };

  bool Pass(ServiceHandle handle, const Passage& passage);
  /// Edits the service of a handle that was opened with the access. False as well when the file cannot be written.
  bool Edit(ServiceHandle handle, std::uint32_t access,
            const std::function<bool(const LabService& service, const Setter& set)>& edit);

  LabNetwork& network_;
  LabHandles<Opened> handles_;
};

}  // namespace corvane
