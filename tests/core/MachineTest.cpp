#include "adapters/lab/LabServiceManager.h"
#include "core/RemoteLogs.h"
#include "core/ServiceControl.h"
#include "support/ConsoleTest.h"

namespace corvane::test {
namespace {

TEST_F(ConsoleTest, ServicesTellPendingAsRunningAndMissingAsUnknown) {
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
  auto& services = dynamic_cast<LabServiceManager&>(Console.Ports.Services);
  for (const auto& service : both)
    for (const auto& c : cases)
      for (const auto& [answer, routine] :
           {std::pair(c.Is, service.State), {c.Starts, service.Start}, {c.Stops, service.Stop}}) {
        SetService(service.Name, c.State, c.Refuses);
        EXPECT_EQ(answer, routine(services)) << service.Name << " is " << c.State << ", refuses " << c.Refuses;
        EXPECT_EQ(0U, services.OpenHandles());
      }
}

TEST_F(ConsoleTest, RemoteLogsExistWhereTheRegistryNamesAFile) {
  Console.SetLab("Lab", "TimeoutMs", "1");
  const struct {
    const char *Computer, *Log;
    bool Exists;
  } cases[] = {{"MERDC01", "DNS Server", true},
               {"\\\\MERDC01", "DNS Server", true},
               {"MERFILE01", "System", true},
               // One has no such log, one is off, one refuses, one is not there.
               {"MERFILE01", "DNS Server", false},
               {"MERFILE03", "Application", false},
               {"HBRFILE2", "Application", false},
               {"NOBODY", "System", false}};
  for (const auto& c : cases) EXPECT_EQ(c.Exists, LogExistsOnComputer(Main, c.Computer, c.Log)) << c.Computer << c.Log;
}

}  // namespace
}  // namespace corvane::test
