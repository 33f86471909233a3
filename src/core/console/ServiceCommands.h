#pragma once

namespace corvane {

class modMain;

/// The two services that the console starts and stops. The numbers are those of their panels in the status bar.
enum class Service { Monitoring = 1, SyslogBridge = 2 };

/// The commands of the Options menu: a service that is there already, and a request that was taken, are told; a request
/// that failed says nothing. True when it was taken.
bool StartServiceByCommand(modMain& main, Service service);
bool StopServiceByCommand(modMain& main, Service service);

}  // namespace corvane
