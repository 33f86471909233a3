#include "adapters/linux/SerialTelephony.h"

#include <sys/stat.h>

namespace corvane {

SerialTelephony::SerialTelephony(std::vector<std::string> devices, Poster post, ModemTiming timing)
    : TelephonyLines(std::move(post)), devices_(std::move(devices)), timing_(timing) {}

bool SerialTelephony::Capabilities(std::uint32_t device, LineDeviceCaps& caps) {
  struct stat status {};
  if (device >= devices_.size() || ::stat(devices_[device].c_str(), &status) != 0 || !S_ISCHR(status.st_mode) ||
      ::access(devices_[device].c_str(), R_OK | W_OK) != 0)
    return false;
  caps = {line::MediaModeDataModem, line::BearerModePassthrough, line::FeatureMakeCall};
  return true;
}

std::unique_ptr<LineCall> SerialTelephony::Dial(std::uint32_t device, const std::string& digits, Teller tell) {
  const std::string command = ModemCall::DialCommand(digits);
  if (command.empty()) return nullptr;
  auto port = SerialPort::Open(devices_.at(device));
  if (!port) return nullptr;
  return std::make_unique<ModemCall>(std::move(*port), command, timing_, std::move(tell));
}

}  // namespace corvane
