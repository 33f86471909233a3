#include "adapters/lab/LabTelephony.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace corvane {
namespace {

std::uint32_t StateOf(LabAnswer answer) {
  if (answer == LabAnswer::Connect) return line::CallStateConnected;
  return answer == LabAnswer::Busy ? line::CallStateBusy : line::CallStateDisconnected;
}

// Waits for the answer of the other end, unless it is hung up before.
class LabCall : public LineCall {
 public:
  LabCall(const LabModem& modem, std::function<void(std::uint32_t)> tell)
      : waiter_([after = std::chrono::milliseconds(modem.AfterMs), answer = modem.Answer,
                 tell = std::move(tell)](const std::stop_token& stop) {
          std::mutex alone;
          std::unique_lock lock(alone);
          std::condition_variable_any().wait_for(lock, stop, after, [] { return false; });
          if (!stop.stop_requested() && answer != LabAnswer::Nothing) tell(StateOf(answer));
        }) {}

 private:
  std::jthread waiter_;
};

}  // namespace

LabTelephony::LabTelephony(LabNetwork& network, Poster post) : TelephonyLines(std::move(post)), network_(network) {}

std::uint32_t LabTelephony::Devices() {
  std::uint32_t count = 0;
  for (const LabModem& modem : network_.Model()->Modems) count = std::max(count, modem.Number + 1);
  return count;
}

bool LabTelephony::Capabilities(std::uint32_t device, LineDeviceCaps& caps) {
  const auto model = network_.Model();
  const LabModem* modem = model->FindModem(device);
  if (modem) caps = {modem->MediaModes, modem->BearerModes, modem->LineFeatures};
  return modem != nullptr;
}

std::unique_ptr<LineCall> LabTelephony::Dial(std::uint32_t device, const std::string&, Teller tell) {
  const auto model = network_.Model();
  const LabModem* modem = model->FindModem(device);
  return modem ? std::make_unique<LabCall>(*modem, std::move(tell)) : nullptr;
}

}  // namespace corvane
