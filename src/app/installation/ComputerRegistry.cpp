#include "app/installation/ComputerRegistry.h"

#include "adapters/lab/LabModel.h"
#include "app/installation/RegistryImage.h"

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

}  // namespace corvane
