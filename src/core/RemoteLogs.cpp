#include "core/RemoteLogs.h"

#include "core/modMain.h"

namespace corvane {

bool LogExistsOnComputer(modMain& main, const std::string& computer, const std::string& log) {
  const RegistryHandle remote = main.Registry.OpenRemoteReg(computer, registry::LocalMachine);
  if (remote == 0) return false;
  const std::string file = main.Registry.DeNullString(
      main.Registry.GetRemoteKeyValue("System\\CurrentControlSet\\Services\\Eventlog\\" + log, "File", remote));
  main.Registry.CloseKeyHandle(remote);
  return !file.empty();
}

}  // namespace corvane
