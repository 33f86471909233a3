#include "core/ServiceControl.h"

#include "platform/ServiceManager.h"

namespace corvane {
namespace {

constexpr const char* MonitoringService = "Corvane Service";
constexpr const char* SyslogBridge = "CVSyslogBridge";

// A service opened for one request; both handles are closed when it goes.
class OpenedService {
 public:
  OpenedService(ServiceManager& services, const char* name, std::uint32_t access)
      : services_(services), manager_(services.OpenManager(service::Connect)) {
    if (manager_ != 0) service_ = services.OpenService(manager_, name, access);
  }
  ~OpenedService() {
    if (service_ != 0) services_.Close(service_);
    if (manager_ != 0) services_.Close(manager_);
  }
  OpenedService(const OpenedService&) = delete;
  OpenedService& operator=(const OpenedService&) = delete;

  ServiceHandle Handle() const { return service_; }

 private:
  ServiceManager& services_;
  ServiceHandle manager_ = 0;
  ServiceHandle service_ = 0;
};

int StateOf(ServiceManager& services, const char* name) {
  const OpenedService opened(services, name, service::ReadAccess);
  std::uint32_t state = 0;
  if (opened.Handle() == 0 || !services.QueryStatus(opened.Handle(), state)) return -1;
  return state == service::Stopped ? 0 : 1;
}

int StartNow(ServiceManager& services, const char* name) {
  const OpenedService opened(services, name, service::ExecuteAccess);
  return opened.Handle() != 0 && services.Start(opened.Handle()) ? 1 : -1;
}

int StopNow(ServiceManager& services, const char* name) {
  const OpenedService opened(services, name, service::ExecuteAccess);
  return opened.Handle() != 0 && services.Control(opened.Handle(), service::StopControl) ? 1 : -1;
}

}  // namespace

int CorvaneServiceState(ServiceManager& services) { return StateOf(services, MonitoringService); }
int SyslogBridgeState(ServiceManager& services) { return StateOf(services, SyslogBridge); }
int StartCorvaneServiceNow(ServiceManager& services) { return StartNow(services, MonitoringService); }
int StopCorvaneServiceNow(ServiceManager& services) { return StopNow(services, MonitoringService); }
int StartSyslogBridgeNow(ServiceManager& services) { return StartNow(services, SyslogBridge); }
int StopSyslogBridgeNow(ServiceManager& services) { return StopNow(services, SyslogBridge); }

bool SetServiceAutoStart(ServiceManager& services) {
  const OpenedService opened(services, MonitoringService, service::ChangeConfigAccess);
  return opened.Handle() != 0 &&
         services.ChangeConfig(opened.Handle(), service::NoChange, service::AutoStart, service::NoChange);
}

}  // namespace corvane
