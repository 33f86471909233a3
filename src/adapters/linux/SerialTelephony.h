#pragma once

#include <string>
#include <vector>

#include "adapters/linux/ModemCall.h"

namespace corvane {

/// The modems on serial devices of this machine. Settings: the paths of the devices, which count from 0 in this order,
/// an empty one for none; what takes callbacks to the program's one thread; how long a modem may take. A device is
/// opened for the time of a call only.
class SerialTelephony : public TelephonyLines {
 public:
  SerialTelephony(std::vector<std::string> devices, Poster post, ModemTiming timing = ModemTiming());

 protected:
  std::uint32_t Devices() override { return static_cast<std::uint32_t>(devices_.size()); }
  /// Those of a data modem that dials. False while the device is not there or this user may not use it.
  bool Capabilities(std::uint32_t device, LineDeviceCaps& caps) override;
  /// Nothing for what cannot be dialled and for a device that is missing or in use.
  std::unique_ptr<LineCall> Dial(std::uint32_t device, const std::string& digits, Teller tell) override;

 private:
  std::vector<std::string> devices_;
  ModemTiming timing_;
};

}  // namespace corvane
