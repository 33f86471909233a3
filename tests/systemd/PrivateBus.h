#pragma once

#include <stdlib.h>

#include <chrono>
#include <memory>
#include <stdexcept>
#include <string>
#include <thread>

#include "adapters/linux/SystemdBus.h"
#include "support/ChildProcess.h"
#include "support/TempFolder.h"

namespace corvane::test {

/// A message bus of the test's own with a mock in systemd's place, see systemd_mock.py. Both end with this object, and
/// by themselves after half a minute.
class PrivateBus {
 public:
  PrivateBus() {
    ::setenv("CALLS", (folder_.Path() / "calls").c_str(), 1);
    ::setenv("DBUS_SESSION_BUS_ADDRESS", Address().c_str(), 1);
    // Not the configuration of a session, by which a real systemd might be started.
    const auto config = folder_.Write("conf", "<busconfig><listen>" + Address() + R"(</listen><policy context="default">
        <allow own="*"/><allow eavesdrop="true"/><allow send_destination="*" eavesdrop="true"/></policy></busconfig>)");
    bus_ = StartProgram("dbus-daemon", "--nofork", "--config-file", config.c_str());
    for (int i = 0; i < 400 && !Answers(); ++i) std::this_thread::sleep_for(std::chrono::milliseconds(50));
    if (!Answers()) throw std::runtime_error("the mock of systemd does not answer");
  }

  std::string Address() const { return "unix:path=" + folder_.Path().string() + "/bus"; }
  /// What systemd was asked to do, one call a line.
  std::string Calls() const { return folder_.Read("calls"); }
  /// Ends the bus under all who are connected.
  void Kill() { bus_->Kill(); }

 private:
  bool Answers() {
    const auto bus = SystemdBus::Connect(Address(), std::chrono::seconds(1));
    // The mock, a package of the system's own Python, gives up at once where no bus listens.
    if (bus && !mock_)
      mock_ = StartProgram("/usr/bin/python3", "-m", "dbusmock", "--session", "-l", "/dev/null", "-t",
                           CORVANE_SOURCE_DIR "/tests/systemd/systemd_mock.py");
    return bus && bus->LoadUnit("inactive.service");
  }

  TempFolder folder_;
  std::unique_ptr<ChildProcess> bus_, mock_;
};

}  // namespace corvane::test
