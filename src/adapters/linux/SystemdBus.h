#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <string>

struct sd_bus;

namespace corvane {

/// A connection to systemd over a message bus, by its interface org.freedesktop.systemd1. No call raises, and none
/// takes longer than the timeout: a bus that is dead gives failures, not a console that hangs.
class SystemdBus {
 public:
  /// Connects to the machine's own bus for "system", else to the bus of this D-Bus address
  /// (`unix:path=...`). Null on failure.
  static std::unique_ptr<SystemdBus> Connect(const std::string& bus, std::chrono::milliseconds timeout);

  /// Has systemd read the unit, which may be missing all the same, and gives the path of its object.
  std::optional<std::string> LoadUnit(const std::string& unit);
  /// A text property of a unit's object.
  std::optional<std::string> UnitProperty(const std::string& object, const char* name);
  /// Queue the job and do not wait for it. False when systemd does not take it.
  bool StartUnit(const std::string& unit);
  bool StopUnit(const std::string& unit);
  /// Has systemd start the unit at boot. False as well for a unit that does not say where in the boot it belongs.
  bool EnableUnit(const std::string& unit);

 private:
  struct Release {
    void operator()(sd_bus* bus) const;
  };
  using Handle = std::unique_ptr<sd_bus, Release>;

  explicit SystemdBus(Handle bus) : bus_(std::move(bus)) {}
  static Handle Begin(const std::string& bus);

  Handle bus_;
};

}  // namespace corvane
