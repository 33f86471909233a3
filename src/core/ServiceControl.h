#pragma once

namespace corvane {

class ServiceManager;

/// State of the two services of this computer: 0 stopped, 1 any other state, the pending ones included, -1 when the
/// service cannot be opened or asked.
int CorvaneServiceState(ServiceManager& services);
int SyslogBridgeState(ServiceManager& services);

/// Request a start or a stop and do not wait for it. 1 when the request was taken, else -1.
int StartCorvaneServiceNow(ServiceManager& services);
int StopCorvaneServiceNow(ServiceManager& services);
int StartSyslogBridgeNow(ServiceManager& services);
int StopSyslogBridgeNow(ServiceManager& services);

/// Has the system start the monitoring service by itself. False when the request was refused.
bool SetServiceAutoStart(ServiceManager& services);

}  // namespace corvane
