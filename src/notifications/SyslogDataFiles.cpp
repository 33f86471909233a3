#include "notifications/SyslogDataFiles.h"

#include <string>

#include "core/PassOver.h"
#include "core/modMain.h"
#include "notifications/InetAddr.h"
#include "platform/CodePage.h"
#include "platform/Files.h"
#include "platform/NamedPipes.h"
#include "platform/ui/ListView.h"
#include "platform/ui/UiHost.h"

namespace corvane {
namespace {

constexpr const char* BridgePipe = "\\\\.\\pipe\\corvanesyslog";
constexpr int BridgeTimeout = 1000;
constexpr std::size_t NumberSize = 4;
constexpr int AddressColumn = 1;

// A number of 32 bits, its lowest byte first.
std::string BytesOfNumber(std::uint32_t number) {
  std::string bytes;
  for (std::size_t i = 0; i < NumberSize; ++i) bytes += static_cast<char>(number >> 8 * i);
  return bytes;
}

// In network byte order, the highest byte first.
std::string BytesOfAddress(std::uint32_t address) {
  const std::string bytes = BytesOfNumber(address);
  return {bytes.rbegin(), bytes.rend()};
}

std::string CountOf(const ui::ListView& devices) { return BytesOfNumber(static_cast<std::uint32_t>(devices.Count())); }

std::string AddressData(const ui::ListView& devices) {
  std::string data = CountOf(devices);
  for (const ui::ListItem& device : devices.Items()) data += BytesOfAddress(InetAddr(device.Cell(AddressColumn)));
  return data;
}

std::string NameData(const ui::ListView& devices) {
  std::string data = CountOf(devices);
  for (const ui::ListItem& device : devices.Items()) {
    const std::string name = AnsiBytes(device.Text);
    data += BytesOfNumber(static_cast<std::uint32_t>(name.size())) + name;
  }
  return data;
}

void DeleteIfThere(Files& files, const std::string& path) {
  try {
    files.Delete(path);
  } catch (const RuntimeError& error) {
    if (error.Number != errors::FileNotFound) throw;
  }
}

}  // namespace

// The files are rewritten in place, so the old ones go first: a bridge that reads meanwhile must not join an old list
// of names to new addresses.
bool WriteSyslogDataFiles(modMain& main, const ui::ListView& devices) {
  const std::string addresses = main.Setting("DataFile"), names = main.Setting("DataFileEx");
  if (addresses.empty() || names.empty()) return false;
  Files& files = main.Platform.Files;
  return PassOver([&] {
    DeleteIfThere(files, addresses);
    DeleteIfThere(files, names);
    files.Write(addresses, AddressData(devices));
    files.Write(names, NameData(devices));
  });
}

bool NotifySyslogBridge(NamedPipes& pipes, std::int32_t value) {
  std::string reply;
  return pipes.Call(BridgePipe, BytesOfNumber(static_cast<std::uint32_t>(value)), reply, NumberSize, BridgeTimeout);
}

// A bridge that is not there reads the files when it starts.
bool UpdateSyslogBridge(modMain& main, NamedPipes& pipes, const ui::ListView& devices) {
  if (!WriteSyslogDataFiles(main, devices)) return false;
  NotifySyslogBridge(pipes, ReadDataFilesAgain);
  return true;
}

void UpdateSyslogBridgeOrTell(modMain& main, NamedPipes& pipes, const ui::ListView& devices) {
  if (UpdateSyslogBridge(main, pipes, devices)) return;
  main.Ui.MsgBox(
      "Corvane was unable to update the syslog data configuration file.  Please check NTFS permissions in your Corvane "
      "installation directory, as well as available disk space, and try the operation again.",
      ui::MsgIcon::Exclamation);
}

}  // namespace corvane
