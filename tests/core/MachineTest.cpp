#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

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
  struct {
    const char *State, *Refuses;
    int Is, Starts, Stops;
  } const cases[] = {
      {"stopped", "nothing", 0, 1, -1},       {"start pending", "nothing", 1, -1, -1},
      {"stop pending", "nothing", 1, -1, -1}, {"running", "nothing", 1, -1, 1},
      {"running", "control", 1, -1, -1},      {"stopped", "control", 0, -1, -1},
      {"running", "everything", -1, -1, -1},
  };
  TestConsole console;
  auto& services = dynamic_cast<LabServiceManager&>(console.Ports.Services);
  const auto set = [&](const std::string& section, const auto& c) {
    console.SetLab(section, "State", c.State);
    console.SetLab(section, "Until", "0");
    console.SetLab(section, "Refuses", c.Refuses);
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.State) + ", refuses " + c.Refuses);
    // What the other service does must not show.
    set("Service Corvane Service", c);
    set("Service CVSyslogBridge", cases[c.Is == 0 ? 3 : 0]);
    EXPECT_EQ(c.Is, CorvaneServiceState(services));
    EXPECT_EQ(c.Starts, StartCorvaneServiceNow(services));
    set("Service Corvane Service", c);
    EXPECT_EQ(c.Stops, StopCorvaneServiceNow(services));
    set("Service CVSyslogBridge", c);
    EXPECT_EQ(c.Is, SyslogBridgeState(services));
    EXPECT_EQ(c.Starts, StartSyslogBridgeNow(services));
    set("Service CVSyslogBridge", c);
    EXPECT_EQ(c.Stops, StopSyslogBridgeNow(services));
    EXPECT_EQ(0U, services.OpenHandles());
  }
}

TEST(ServiceControl, MeetsAServiceUnderTheNameThatAHandGaveIt) {
  const auto bridgeUnder = [](const std::string& section) {
    TestConsole console;
    const auto file = console.Folder() / Installation::LabFile;
    std::ostringstream text;
    text << std::ifstream(file).rdbuf();
    std::string changed = text.str();
    const std::string original = "[Service CVSyslogBridge]";
    changed.replace(changed.find(original), original.size(), section);
    std::ofstream(file) << changed;
    ServiceManager& services = console.Ports.Services;
    const int before = SyslogBridgeState(services);
    return std::vector<int>{before, StartSyslogBridgeNow(services), SyslogBridgeState(services)};
  };
  EXPECT_EQ((std::vector<int>{0, 1, 1}), bridgeUnder("[ Service   cvsyslogbridge ]"));
  EXPECT_EQ((std::vector<int>{-1, -1, -1}), bridgeUnder("[Service Another]"));
}

// Notes what is asked of it and fails from the step of that number on.
class WitnessServices : public ServiceManager {
 public:
  ServiceHandle OpenManager(std::uint32_t access) override { return Step("manager " + std::to_string(access)) ? 1 : 0; }
  ServiceHandle OpenService(ServiceHandle, const std::string& name, std::uint32_t access) override {
    return Step(name + " " + std::to_string(access)) ? 2 : 0;
  }
  bool QueryStatus(ServiceHandle, std::uint32_t& state) override {
    state = service::Stopped;
    return Step("query");
  }
  bool Start(ServiceHandle) override { return Step("start"); }
  bool Control(ServiceHandle, std::uint32_t code) override { return Step("control " + std::to_string(code)); }
  void Close(ServiceHandle handle) override { Calls += "close " + std::to_string(handle) + "; "; }

  std::string Calls;
  int StepsLeft = 99;

 private:
  bool Step(const std::string& call) {
    Calls += call + "; ";
    return StepsLeft-- > 0;
  }
};

TEST(ServiceControl, ClosesWhatItOpenedWhateverFails) {
  const auto calls = [](int (*routine)(ServiceManager&), int steps) {
    WitnessServices services;
    services.StepsLeft = steps;
    const int result = routine(services);
    return services.Calls + std::to_string(result);
  };
  EXPECT_EQ("manager 1; -1", calls(CorvaneServiceState, 0));
  EXPECT_EQ("manager 1; Corvane Service 2147483648; close 1; -1", calls(CorvaneServiceState, 1));
  EXPECT_EQ("manager 1; CVSyslogBridge 2147483648; query; close 2; close 1; -1", calls(SyslogBridgeState, 2));
  EXPECT_EQ("manager 1; CVSyslogBridge 2147483648; query; close 2; close 1; 0", calls(SyslogBridgeState, 3));
  EXPECT_EQ("manager 1; Corvane Service 536870912; start; close 2; close 1; -1", calls(StartCorvaneServiceNow, 2));
  EXPECT_EQ("manager 1; CVSyslogBridge 536870912; control 1; close 2; close 1; 1", calls(StopSyslogBridgeNow, 3));
}

TEST(RemoteLogs, ExistWhereTheRegistryNamesAFile) {
  TestConsole console;
  console.SetLab("Lab", "TimeoutMs", "1");
  modMain& main = console.App.State();
  Reghack& registry = main.Registry;
  const RegistryHandle remote = registry.OpenRemoteReg("MERDC01", registry::LocalMachine);
  ASSERT_NE(0U, remote);
  ASSERT_TRUE(registry.SetRemoteKeyValue("System\\CurrentControlSet\\Services\\Eventlog\\System", "File", "",
                                         registry::String, remote));
  registry.CloseKeyHandle(remote);
  struct {
    const char *Computer, *Log;
    bool Exists;
  } const cases[] = {
      {"MERDC01", "DNS Server", true},    {"\\\\MERDC01", "DNS Server", true}, {"MERDC01", "System", false},
      {"MERFILE01", "DNS Server", false}, {"MERFILE03", "Application", false}, {"HBRFILE2", "Application", false},
      {"NOBODY", "Application", false},
  };
  for (const auto& c : cases) EXPECT_EQ(c.Exists, LogExistsOnComputer(main, c.Computer, c.Log)) << c.Computer << c.Log;
}

class WitnessLauncher : public Launcher {
 public:
  void Run(const std::string& commandLine) override {
    Ran = commandLine;
    if (Fails) throw RuntimeError(errors::FileNotFound, "File not found");
  }
  std::string Ran;
  bool Fails = false;
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
  launcher.Fails = true;
  console.Host.OnBox(
      "No default browser was found to connect to https://x.example/?a=%1\n"
      "If you do have a browser installed, start it and go to https://x.example/?a=%1");
  commandFor("");
  EXPECT_EQ(ui::MsgIcon::Exclamation, console.Host.Boxes.at(0).Icon);
  EXPECT_EQ("Corvane", console.Host.Boxes.at(0).Title);
}

}  // namespace
}  // namespace corvane::test
