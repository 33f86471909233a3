#pragma once

#include "adapters/lab/LabNetwork.h"
#include "platform/TelephonyLines.h"

namespace corvane {

/// The modems of the lab's local computer. Settings: the network, and what takes callbacks to the program's one thread.
/// A call is answered as the lab file says, when its time has passed.
class LabTelephony : public TelephonyLines {
 public:
  LabTelephony(LabNetwork& network, Poster post);

 protected:
  /// One more than the highest number of a modem; a number that is left out is a device that fails.
  std::uint32_t Devices() override;
  bool Capabilities(std::uint32_t device, LineDeviceCaps& caps) override;
  std::unique_ptr<LineCall> Dial(std::uint32_t device, const std::string& digits, Teller tell) override;

 private:
  LabNetwork& network_;
};

}  // namespace corvane
