#include "adapters/lab/LabPing.h"

#include "platform/RuntimeError.h"

namespace corvane {

LabPing::LabPing(LabNetwork& network) : network_(network) {}

PingReply LabPing::Send(const std::string& host) {
  const auto model = network_.Model();
  const LabComputer* computer = host.empty() ? nullptr : model->FindComputer(host);
  if (!computer) throw RuntimeError(errors::AutomationError, host + " cannot be resolved: Name or service not known");
  if (computer->State == LabState::Off || !computer->AnswersPing) {
    network_.Wait(model->TimeoutMs);
    return {};
  }
  network_.Wait(computer->DelayMs);
  return {computer->Address, computer->DelayMs};
}

}  // namespace corvane
