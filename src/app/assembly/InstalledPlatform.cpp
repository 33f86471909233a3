#include "app/assembly/InstalledPlatform.h"

#include "adapters/lab/LabChannelReader.h"
#include "adapters/lab/LabDirectoryApi.h"
#include "adapters/lab/LabDirectoryProvider.h"
#include "adapters/lab/LabEventLogs.h"
#include "adapters/lab/LabEventReader.h"
#include "adapters/lab/LabNetX.h"
#include "adapters/lab/LabNetwork.h"
#include "adapters/lab/LabPing.h"
#include "adapters/lab/LabServiceManager.h"
#include "adapters/lab/LabSystem.h"
#include "adapters/lab/LabTelephony.h"
#include "adapters/lab/LabUnitQuery.h"
#include "adapters/linux/HostPaths.h"
#include "adapters/linux/JournalEventReader.h"
#include "adapters/linux/LinuxFiles.h"
#include "adapters/linux/LinuxLauncher.h"
#include "adapters/linux/LinuxMessageSender.h"
#include "adapters/linux/LinuxNamedPipes.h"
#include "adapters/linux/LinuxPing.h"
#include "adapters/linux/LinuxSingleInstance.h"
#include "adapters/linux/LinuxSystem.h"
#include "adapters/linux/SerialTelephony.h"
#include "adapters/linux/SystemdServiceManager.h"
#include "adapters/odbc/OdbcConnector.h"
#include "adapters/settings/IniFiles.h"
#include "adapters/settings/RegistryFileStore.h"
#include "adapters/sqlite/SqliteProvider.h"
#include "app/installation/Installation.h"
#include "platform/Conversions.h"
#include "platform/ui/UiHost.h"

namespace corvane {
namespace {

constexpr int NewestSystem = 6;
constexpr int PingTimeout = 2000;
constexpr int MostModems = 10;

// The choices of an installation's platform.ini.
class PlatformChoice {
 public:
  explicit PlatformChoice(IniFiles& profiles) : profiles_(profiles) {}

  int Number(const char* section, const char* key, int fallback) const {
    return profiles_.GetInt(section, key, fallback, File());
  }
  std::string Text(const char* section, const std::string& key, const char* fallback = "") const {
    std::string value;
    profiles_.GetString(section, key, fallback, value, 4096, File());
    return value;
  }
  /// The paths of the modems' serial devices, up to the last one that is named.
  std::vector<std::string> SerialDevices() const {
    std::vector<std::string> devices;
    for (int number = 0; number < MostModems; ++number)
      if (std::string device = Text("Telephony", "Device" + std::to_string(number)); !device.empty()) {
        devices.resize(static_cast<std::size_t>(number));
        devices.push_back(std::move(device));
      }
    return devices;
  }
  bool Is(const char* section, const char* key, const char* choice) const {
    return SameText(Text(section, key), choice);
  }

 private:
  static std::string File() { return std::string(HostPaths::ProgramFolder) + "\\" + Installation::PlatformFile; }

  IniFiles& profiles_;
};

}  // namespace

struct InstalledPlatform::Adapters {
  Adapters(const std::filesystem::path& folder, ui::UiHost& host)
      : Paths(HostPaths(folder)),
        Profiles(Paths),
        Choice(Profiles),
        Files(Paths),
        Data(Paths),
        Network(folder / Installation::LabFile, folder / Installation::RegistryFile),
        Registry(folder / Installation::RegistryFile,
                 [this](const std::string& computer, std::filesystem::path& file) {
                   return Network.RemoteRegistry(computer, file);
                 }),
        Machine(Choice.Number("System", "MajorVersion", NewestSystem)),
        LocalSystem(Network, Machine),
        EventLogs(Network),
        Net(Network),
        Directory(Network),
        Units(Network),
        Messages([&host] { host.Repaint(); }),
        Pipes(folder / Installation::PipeFolder),
        Instance(folder) {
    if (Choice.Is("Ping", "Source", "linux"))
      Echo = std::make_unique<LinuxPing>(std::chrono::milliseconds(Choice.Number("Ping", "Timeout", PingTimeout)));
    else
      Echo = std::make_unique<LabPing>(Network);
    if (Choice.Is("Services", "Source", "systemd"))
      Services = std::make_unique<SystemdServiceManager>(
          Choice.Text("Services", "Bus", "system"),
          [this](const std::string& name) { return Choice.Text("Services", name); });
    else
      Services = std::make_unique<LabServiceManager>(Network);
    if (Choice.Is("Events", "Source", "journal"))
      Events = std::make_unique<JournalEventReader>(LocalSystem, Paths(Choice.Text("Events", "Path")));
    else
      Events = std::make_unique<LabEventReader>(Network, folder / Installation::EventLogFolder);
    const auto post = [&host](std::function<void()> action) { host.Post(std::move(action)); };
    if (Choice.Is("Telephony", "Source", "serial"))
      Phones = std::make_unique<SerialTelephony>(Choice.SerialDevices(), post);
    else
      Phones = std::make_unique<LabTelephony>(Network, post);
  }

  PathMap Paths;
  IniFiles Profiles;
  PlatformChoice Choice;
  LinuxFiles Files;
  SqliteProvider Data;
  LabNetwork Network;
  RegistryFileStore Registry;
  LinuxSystem Machine;
  LabSystem LocalSystem;
  std::unique_ptr<ServiceManager> Services;
  LabEventLogs EventLogs;
  std::unique_ptr<EventReader> Events;
  LabNetX Net;
  LabDirectoryProvider Directory;
  LabUnitQuery Units;
  std::unique_ptr<Ping> Echo;
  LinuxMessageSender Messages;
  OdbcConnector Targets;
  std::unique_ptr<Telephony> Phones;
  LinuxNamedPipes Pipes;
  LinuxLauncher Launcher;
  LinuxSingleInstance Instance;
};

InstalledPlatform::InstalledPlatform(const std::filesystem::path& folder, ui::UiHost& host)
    : adapters_(std::make_unique<Adapters>(folder, host)) {
  Adapters& all = *adapters_;
  platform_ = std::make_unique<Platform>(Platform{all.LocalSystem,
                                                  all.Files,
                                                  all.Registry,
                                                  all.Profiles,
                                                  all.Data,
                                                  *all.Services,
                                                  all.EventLogs,
                                                  *all.Events,
                                                  all.Net,
                                                  all.Directory,
                                                  all.Units,
                                                  *all.Echo,
                                                  all.Messages,
                                                  all.Targets,
                                                  *all.Phones,
                                                  all.Pipes,
                                                  all.Launcher,
                                                  all.Instance,
                                                  host,
                                                  [&all] { return std::make_unique<LabDirectoryApi>(all.Network); },
                                                  [&all] { return std::make_unique<LabChannelReader>(all.Network); }});
}

InstalledPlatform::~InstalledPlatform() = default;

}  // namespace corvane
