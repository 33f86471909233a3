#include "adapters/lab/LabServiceManager.h"
#include "core/RemoteLogs.h"
#include "core/ServiceControl.h"
#include "support/Cases.h"
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
  auto& services = dynamic_cast<LabServiceManager&>(Console.Ports.Services);
  for (const auto& service : both)
    for (const auto& c : Cases("core/Services.txt"))
      for (const auto& [answer, routine] :
           {std::pair(c[2], service.State), {c[3], service.Start}, {c[4], service.Stop}}) {
        SetService(service.Name, c[0], c[1]);
        EXPECT_EQ(answer, std::to_string(routine(services))) << service.Name << " is " << c[0] << ", refuses " << c[1];
        EXPECT_EQ(0U, services.OpenHandles());
      }
}

TEST_F(ConsoleTest, RemoteLogsExistWhereTheRegistryNamesAFile) {
  Console.SetLab("Lab", "TimeoutMs", "1");
  for (const auto& c : Cases("core/RemoteLogs.txt"))
    EXPECT_EQ(c[2], LogExistsOnComputer(Main, c[0], c[1]) ? "yes" : "no") << c[0] << c[1];
}

}  // namespace
}  // namespace corvane::test
