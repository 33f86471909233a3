#pragma once

#include <gtest/gtest.h>

#include <functional>

#include "adapters/lab/LabNetwork.h"
#include "platform/RuntimeError.h"
#include "support/TempFolder.h"

namespace corvane::test {

/// A lab of eight computers whose clock stands still until something waits.
class LabFixture : public testing::Test {
 protected:
  static constexpr const char* Text = R"(; kept
[Lab]
LocalComputer = desk
User = ann
TimeoutMs = 500
[System old]
Product = Old System
Version = 4.0
[System new]
Product = New System
Version = 6.1
[Domain NORTH]
Dns = north.example
Trusts = SOUTH, EAST
Units = Servers, Servers/Web
[Domain SOUTH]
Trusts = NORTH
[Domain EAST]
Dns = east.example
[Workgroup SHED]
[Computer DC0]
Domain = NORTH
System = new
Role = controller
State = off
Address = 192.0.2.1
[Computer DC1]
Domain = north
System = new
Role = controller
Address = 192.0.2.2
DelayMs = 70
Log Application = oldest 100, count 50, size 20480, keep forever
Log Security = off
[Computer DESK]
Domain = NORTH
System = new
Address = 192.0.2.3
Unit = servers
Log Application = oldest 1, count 9, keep 0
[Computer WEB]
Domain = NORTH
System = old
Address = 192.0.2.4
Unit = Servers/Web
State = refusing
[Computer SDC]
Domain = SOUTH
System = old
Role = controller
Address = 192.0.2.5
Log Application = oldest 7, count 3
Log System = oldest 0, count 0
[Computer EDC]
Domain = EAST
System = new
Role = controller
State = refusing
Address = 192.0.2.6
[Computer TOOL]
Domain = SHED
System = old
Address = 192.0.2.7
Ping = blocked
[Computer RAKE]
Domain = SHED
System = old
Address = 192.0.2.8
State = off
[Service Watcher]
StartMs = 100
StopMs = 40
[Service Bridge]
State = stop pending
[Service Locked]
State = running
Refuses = control
[Service Hidden]
Refuses = everything
)";

  LabTiming Timing() {
    LabTiming timing;
    timing.Sleep = [this](int milliseconds) { Clock += milliseconds; };
    timing.Now = [this] { return Clock; };
    return timing;
  }

  /// How long the work waited, in milliseconds.
  std::int64_t WaitOf(const std::function<void()>& work) {
    const std::int64_t start = Clock;
    work();
    return Clock - start;
  }

  /// What the error says that the work raises, empty for none.
  static std::string ErrorOf(const std::function<void()>& work) {
    try {
      work();
    } catch (const RuntimeError& error) {
      return std::to_string(error.Number) + " " + error.Description;
    }
    return "";
  }

  TempFolder Folder;
  std::filesystem::path File = Folder.Write("lab.ini", Text);
  std::int64_t Clock = 1000000;
  LabNetwork Network{File, Folder.Path() / "own.reg", Timing()};
};

}  // namespace corvane::test
