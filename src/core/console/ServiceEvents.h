#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace corvane {

/// An event that the monitoring service has logged.
struct ServiceEvent {
  /// For display: "11/16/2026 14:05:09".
  std::string Date;
  /// In capitals: "INFORMATION", "WARNING", "ERROR", "SUCCESS AUDIT" or "FAILURE AUDIT".
  std::string Type;
  /// Lines are parted by CR LF.
  std::string Description;
};

/// The events of the service, the newest first. Room for 2000 is taken at once and doubled whenever it is full.
class ServiceEvents {
 public:
  static constexpr std::size_t FirstRoom = 2000;

  /// Forgets all events and gives back what they took.
  void Release() { std::vector<ServiceEvent>().swap(events_); }
  void Add(ServiceEvent event);

  auto begin() const { return events_.begin(); }
  auto end() const { return events_.end(); }

 private:
  std::vector<ServiceEvent> events_;
};

}  // namespace corvane
