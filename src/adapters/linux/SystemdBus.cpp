#include "adapters/linux/SystemdBus.h"

#include <systemd/sd-bus.h>

#include <cerrno>
#include <cstdlib>

namespace corvane {
namespace {

using Clock = std::chrono::steady_clock;

constexpr const char* Systemd = "org.freedesktop.systemd1";
constexpr const char* ManagerObject = "/org/freedesktop/systemd1";
constexpr const char* ManagerInterface = "org.freedesktop.systemd1.Manager";
constexpr const char* UnitInterface = "org.freedesktop.systemd1.Unit";

struct MessageRelease {
  void operator()(sd_bus_message* message) const { sd_bus_message_unref(message); }
};
using Message = std::unique_ptr<sd_bus_message, MessageRelease>;

// Calls a method of the manager; the reply, null on failure. Nothing allows systemd to ask the user for a password
// meanwhile: the answer would come too late, so it refuses at once.
template <class... Arguments>
Message Call(sd_bus* bus, const char* method, const char* types, Arguments... arguments) {
  sd_bus_message* reply = nullptr;
  sd_bus_call_method(bus, Systemd, ManagerObject, ManagerInterface, method, nullptr, &reply, types, arguments...);
  return Message(reply);
}

std::uint64_t Microseconds(Clock::duration time) {
  return static_cast<std::uint64_t>(std::chrono::duration_cast<std::chrono::microseconds>(time).count());
}

// The library's own wait for the greeting has no limit that can be set, so the greeting is awaited here.
bool BecomesReady(sd_bus* bus, Clock::time_point deadline) {
  for (;;) {
    const int ready = sd_bus_is_ready(bus);
    if (ready != 0) return ready > 0;
    const int worked = sd_bus_process(bus, nullptr);
    if (worked < 0) return false;
    if (worked > 0) continue;
    const Clock::time_point now = Clock::now();
    if (now >= deadline) return false;
    const int waited = sd_bus_wait(bus, Microseconds(deadline - now));
    if (waited < 0 && waited != -EINTR) return false;
  }
}

}  // namespace

// Closing without a flush, which would wait for a bus that does not read.
void SystemdBus::Release::operator()(sd_bus* bus) const { sd_bus_close_unref(bus); }

SystemdBus::Handle SystemdBus::Begin(const std::string& bus) {
  sd_bus* made = nullptr;
  if (bus == "system") return Handle(sd_bus_open_system(&made) < 0 ? nullptr : made);
  if (sd_bus_new(&made) < 0) return nullptr;
  Handle handle(made);
  const bool begun =
      sd_bus_set_address(made, bus.c_str()) >= 0 && sd_bus_set_bus_client(made, 1) >= 0 && sd_bus_start(made) >= 0;
  return begun ? std::move(handle) : nullptr;
}

std::unique_ptr<SystemdBus> SystemdBus::Connect(const std::string& bus, std::chrono::milliseconds timeout) {
  Handle handle = Begin(bus);
  if (!handle || !BecomesReady(handle.get(), Clock::now() + timeout)) return nullptr;
  if (sd_bus_set_method_call_timeout(handle.get(), Microseconds(timeout)) < 0) return nullptr;
  return std::unique_ptr<SystemdBus>(new SystemdBus(std::move(handle)));
}

std::optional<std::string> SystemdBus::LoadUnit(const std::string& unit) {
  const Message reply = Call(bus_.get(), "LoadUnit", "s", unit.c_str());
  const char* object = nullptr;
  if (!reply || sd_bus_message_read(reply.get(), "o", &object) < 0) return std::nullopt;
  return object;
}

std::optional<std::string> SystemdBus::UnitProperty(const std::string& object, const char* name) {
  char* text = nullptr;
  if (sd_bus_get_property_string(bus_.get(), Systemd, object.c_str(), UnitInterface, name, nullptr, &text) < 0)
    return std::nullopt;
  const std::unique_ptr<char, decltype(&std::free)> owned(text, &std::free);
  return text;
}

bool SystemdBus::StartUnit(const std::string& unit) {
  return Call(bus_.get(), "StartUnit", "ss", unit.c_str(), "replace") != nullptr;
}

bool SystemdBus::StopUnit(const std::string& unit) {
  return Call(bus_.get(), "StopUnit", "ss", unit.c_str(), "replace") != nullptr;
}

bool SystemdBus::EnableUnit(const std::string& unit) {
  // One name; for good and not until the next boot; what stands in the way of the link stays.
  const Message reply = Call(bus_.get(), "EnableUnitFiles", "asbb", 1, unit.c_str(), 0, 0);
  int hasInstallSection = 0;
  if (!reply || sd_bus_message_read(reply.get(), "b", &hasInstallSection) < 0 || !hasInstallSection) return false;
  return Call(bus_.get(), "Reload", "") != nullptr;
}

}  // namespace corvane
