#include <gtest/gtest.h>

#include "adapters/lab/LabServiceManager.h"
#include "core/Browser.h"
#include "core/RemoteLogs.h"
#include "core/ServiceControl.h"
#include "core/modMain.h"
#include "platform/Launcher.h"
#include "platform/RuntimeError.h"
#include "support/ReplacedPorts.h"
#include "support/TestConsole.h"

namespace corvane::test {
namespace {

TEST(ServiceControl, TellsPendingAsRunningAndMissingAsUnknown) {
  using Routine = int (*)(ServiceManager&);
  const struct {
    const char* Name;
    Routine State, Start, Stop;
  } both[] = {{"Corvane Service", CorvaneServiceState, StartCorvaneServiceNow, StopCorvaneServiceNow},
              {"CVSyslogBridge", SyslogBridgeState, StartSyslogBridgeNow, StopSyslogBridgeNow}};
  const struct {
    const char *State, *Refuses;
    int Is, Starts, Stops;
  } cases[] = {{"stopped", "nothing", 0, 1, -1},       {"start pending", "nothing", 1, -1, -1},
               {"stop pending", "nothing", 1, -1, -1}, {"running", "nothing", 1, -1, 1},
               {"running", "control", 1, -1, -1},      {"stopped", "control", 0, -1, -1},
               {"running", "everything", -1, -1, -1}};
  TestConsole console;
  auto& services = dynamic_cast<LabServiceManager&>(console.Ports.Services);
  const auto ask = [&](const std::string& name, const auto& c, Routine routine) {
    console.SetLab("Service " + name, "State", c.State);
    console.SetLab("Service " + name, "Until", "0");
    console.SetLab("Service " + name, "Refuses", c.Refuses);
    const int answer = routine(services);
    EXPECT_EQ(0U, services.OpenHandles());
    return answer;
  };
  for (const auto& service : both)
    for (const auto& c : cases) {
      SCOPED_TRACE(std::string(service.Name) + " is " + c.State + ", refuses " + c.Refuses);
      EXPECT_EQ(c.Is, ask(service.Name, c, service.State));
      EXPECT_EQ(c.Starts, ask(service.Name, c, service.Start));
      EXPECT_EQ(c.Stops, ask(service.Name, c, service.Stop));
    }
}

TEST(RemoteLogs, ExistWhereTheRegistryNamesAFile) {
  TestConsole console;
  console.SetLab("Lab", "TimeoutMs", "1");
  modMain& main = console.App.State();
  const char* const there[][2] = {{"MERDC01", "DNS Server"}, {"\\\\MERDC01", "DNS Server"}, {"MERFILE01", "System"}};
  for (const auto& [computer, log] : there) EXPECT_TRUE(LogExistsOnComputer(main, computer, log)) << computer;
  // One has no such log, one is off, one refuses, one is not there.
  const char* const missing[][2] = {
      {"MERFILE01", "DNS Server"}, {"MERFILE03", "Application"}, {"HBRFILE2", "Application"}, {"NOBODY", "System"}};
  for (const auto& [computer, log] : missing) EXPECT_FALSE(LogExistsOnComputer(main, computer, log)) << computer;
}

class WitnessLauncher : public Launcher {
 public:
  void Run(const std::string& commandLine) override {
    Ran = commandLine;
    if (Ran.starts_with(" ")) throw RuntimeError(errors::FileNotFound, "File not found");
  }
  std::string Ran;
};

TEST(Browser, PutsTheLinkInItsPlaceOrBehindTheCommand) {
  TestConsole console;
  WitnessLauncher launcher;
  Platform ports = Replace(console.Ports, {.Launcher = &launcher});
  modMain main(ports);
  const auto commandFor = [&](const std::string& registered) {
    main.Registry.SetKeyValueHKCR("http\\shell\\open\\command", "", registered, registry::String);
    OpenInBrowser(main, "https://x.example/?a=%1");
    return launcher.Ran;
  };
  EXPECT_EQ("b.exe -u \"https://x.example/?a=%1\" \"%1\"", commandFor("b.exe -u \"%1\" \"%1\""));
  EXPECT_EQ("b.exe https://x.example/?a=%1", commandFor("b.exe"));
  console.Host.OnBox(
      "No default browser was found to connect to https://x.example/?a=%1\n"
      "If you do have a browser installed, start it and go to https://x.example/?a=%1");
  commandFor("");
}

}  // namespace
}  // namespace corvane::test
