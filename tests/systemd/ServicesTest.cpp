#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>

#include "adapters/linux/Descriptor.h"
#include "adapters/linux/SystemdServiceManager.h"
#include "core/ServiceControl.h"
#include "support/TestConsole.h"
#include "systemd/PrivateBus.h"

namespace corvane::test {

static std::string UnitOf(const std::string& service) { return service.empty() ? "" : service + ".service"; }

class ServicesTest : public testing::Test {
 protected:
  ServiceHandle Open(const std::string& name, std::uint32_t access = service::ReadAccess | service::ExecuteAccess |
                                                                     service::ChangeConfigAccess) {
    return Services.OpenService(Manager, name, access);
  }
  // The state; 0 when it cannot be read.
  std::uint32_t State(ServiceHandle opened) {
    std::uint32_t state = 0;
    return Services.QueryStatus(opened, state) ? state : 0;
  }
  bool Stop(ServiceHandle opened) { return Services.Control(opened, service::StopControl); }
  bool Enable(ServiceHandle opened, std::uint32_t type = service::NoChange) {
    return Services.ChangeConfig(opened, type, service::AutoStart, service::NoChange);
  }
  bool DoAnything(ServiceHandle opened) { return Services.Start(opened) || Stop(opened) || Enable(opened); }

  PrivateBus Bus;
  SystemdServiceManager Services{Bus.Address(), UnitOf, std::chrono::seconds(10)};
  ServiceHandle Manager = Services.OpenManager(service::Connect);
};

TEST_F(ServicesTest, StatesAreThoseOfTheUnit) {
  const std::pair<const char*, std::uint32_t> cases[] = {
      {"inactive", service::Stopped},
      {"failed", service::Stopped},
      {"active", service::Running},
      {"reloading", service::Running},
      {"activating", service::StartPending},
      {"deactivating", service::StopPending},
      {"unheard", 0},
  };
  for (const auto& [name, state] : cases) EXPECT_EQ(State(Open(name)), state) << name;
  for (const char* name : {"missing", "hidden", ""}) EXPECT_EQ(Open(name), 0u) << name;
  ::setenv("DBUS_SYSTEM_BUS_ADDRESS", Bus.Address().c_str(), 1);
  EXPECT_NE(SystemdServiceManager("system", UnitOf).OpenManager(service::Connect), 0u);
}

TEST_F(ServicesTest, RequestsAreDeliveredAndNotAwaited) {
  const ServiceHandle opened = Open("corvane"), broken = Open("broken");
  EXPECT_TRUE(Services.Start(opened));
  EXPECT_EQ(State(opened), service::StartPending);
  EXPECT_TRUE(Stop(opened));
  EXPECT_EQ(State(opened), service::StopPending);
  EXPECT_TRUE(Enable(opened));
  // A service that fails while it starts has been started; one that no boot would start cannot be enabled.
  EXPECT_TRUE(Services.Start(broken));
  EXPECT_EQ(State(broken), service::Stopped);
  EXPECT_FALSE(Enable(Open("static")));
  EXPECT_FALSE(Services.Control(opened, service::StopControl + 1) || Enable(opened, 16));
  EXPECT_FALSE(DoAnything(Open("corvane", service::ReadAccess)));
  EXPECT_EQ(Bus.Calls(),
            "StartUnit corvane.service replace\nStopUnit corvane.service replace\n"
            "EnableUnitFiles corvane.service False False\nReload \n"
            "StartUnit broken.service replace\nEnableUnitFiles static.service False False\n");
}

TEST_F(ServicesTest, RefusalsAndABusThatIsGoneAreFailures) {
  for (const char* name : {"guarded", "asking", "masked"}) {
    EXPECT_NE(Open(name), 0u) << name;
    EXPECT_FALSE(DoAnything(Open(name))) << name;
  }
  const ServiceHandle opened = Open("active");
  EXPECT_EQ(State(opened), service::Running);
  Bus.Kill();
  EXPECT_EQ(State(opened) + Open("active") + Services.OpenManager(service::Connect), 0u);
  EXPECT_FALSE(DoAnything(opened));
  EXPECT_EQ(Bus.Calls(), "");
}

TEST_F(ServicesTest, WhoeverIsSilentOrNotThereHoldsNothingUp) {
  const TempFolder folder;
  sockaddr_un address{AF_UNIX, {}};
  const std::string path = folder.Path() / "silent";
  path.copy(address.sun_path, sizeof address.sun_path - 1);
  const Descriptor silent(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
  ASSERT_EQ(::bind(silent.Get(), reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
  ASSERT_EQ(::listen(silent.Get(), 4), 0);
  const auto begin = std::chrono::steady_clock::now();
  for (const std::string& bus :
       {Bus.Address(), "unix:path=" + path, "unix:path=" + path + "-not", std::string("bus")}) {
    SystemdServiceManager hasty(bus, UnitOf, std::chrono::milliseconds(500));
    const ServiceHandle manager = hasty.OpenManager(service::Connect);
    EXPECT_TRUE(manager == 0 || bus == Bus.Address()) << bus;
    EXPECT_EQ(hasty.OpenService(manager, "silent", service::ReadAccess), 0u) << bus;
  }
  // Left to itself, the library waits for 25 seconds and more.
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(20));
}

TEST(ServicesChoiceTest, TheInstallationNamesTheBusAndTheUnits) {
  const PrivateBus bus;
  const std::string choice = "[Services]\nSource=systemd\nBus=" + bus.Address();
  const TestConsole console(Installation::Kind::Lab, choice + "\nCorvane Service=inactive.service\n");
  ServiceManager& services = console.Ports.Services;
  EXPECT_EQ(CorvaneServiceState(services), 0);
  EXPECT_EQ(StartCorvaneServiceNow(services), 1);
  EXPECT_EQ(CorvaneServiceState(services), 1);
  EXPECT_EQ(SyslogBridgeState(services), -1);
  EXPECT_EQ(bus.Calls(), "StartUnit inactive.service replace\n");
}

}  // namespace corvane::test
