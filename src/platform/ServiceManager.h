#pragma once

#include <cstdint>
#include <string>

namespace corvane {

/// A handle to the service manager or to a service; 0 is none.
using ServiceHandle = std::uint64_t;

namespace service {
inline constexpr std::uint32_t Stopped = 1;
inline constexpr std::uint32_t StartPending = 2;
inline constexpr std::uint32_t StopPending = 3;
inline constexpr std::uint32_t Running = 4;

inline constexpr std::uint32_t Connect = 1;
inline constexpr std::uint32_t ReadAccess = 0x80000000;
inline constexpr std::uint32_t ExecuteAccess = 0x20000000;
inline constexpr std::uint32_t ChangeConfigAccess = 2;

inline constexpr std::uint32_t StopControl = 1;

// Settings of a service.
inline constexpr std::uint32_t NoChange = 0xFFFFFFFF;
inline constexpr std::uint32_t AutoStart = 2;
}  // namespace service

/// The service manager of this computer. No call waits for a service to arrive at its new state.
class ServiceManager {
 public:
  virtual ~ServiceManager() = default;

  /// Connects to the manager; 0 on failure.
  virtual ServiceHandle OpenManager(std::uint32_t access) = 0;
  /// Opens a service by its name; 0 when there is none or access is refused.
  virtual ServiceHandle OpenService(ServiceHandle manager, const std::string& name, std::uint32_t access) = 0;
  /// Reads the service's present state. False on failure.
  virtual bool QueryStatus(ServiceHandle service, std::uint32_t& state) = 0;
  /// Requests a start without arguments. False on failure.
  virtual bool Start(ServiceHandle service) = 0;
  /// Sends a control code. False on failure.
  virtual bool Control(ServiceHandle service, std::uint32_t code) = 0;
  /// Changes the kind of a service, how it is started and what a failure at its start does; `NoChange` leaves one as it
  /// is. False on failure.
  virtual bool ChangeConfig(ServiceHandle service, std::uint32_t type, std::uint32_t start,
                            std::uint32_t errorControl) = 0;
  virtual void Close(ServiceHandle handle) = 0;
};

}  // namespace corvane
