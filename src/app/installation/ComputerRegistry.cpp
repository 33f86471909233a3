#include "app/installation/ComputerRegistry.h"

#include "adapters/lab/LabModel.h"
#include "app/installation/RegistryImage.h"
#include "core/Settings.h"

namespace corvane {

void DescribeComputer(const LabComputer& computer, RegistryImage& registry) {
  registry.SetText(R"(HKEY_LOCAL_MACHINE\Software\Microsoft\Windows NT\CurrentVersion)", "ProductName",
                   computer.Product);
  for (const LabLog& log : computer.Logs) {
    const std::string key = R"(HKEY_LOCAL_MACHINE\System\CurrentControlSet\Services\EventLog\)" + log.Name;
    registry.SetExpandText(key, "File", log.File);
    registry.SetNumber(key, "MaxSize", log.MaxSize);
    registry.SetNumber(key, "Retention", log.Retention);
  }
}

void DescribeModems(const LabModel& lab, RegistryImage& registry) {
  const std::string modems = std::string(R"(HKEY_LOCAL_MACHINE\)") + ModemsKey + R"(\000)";
  for (const LabModem& modem : lab.Modems)
    if (!modem.Name.empty()) registry.SetText(modems + std::to_string(modem.Number), "FriendlyName", modem.Name);
}

}  // namespace corvane
