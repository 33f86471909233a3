#include "adapters/lab/LabSystem.h"

namespace corvane {

LabSystem::LabSystem(LabNetwork& network, System& machine) : network_(network), machine_(machine) {}

int LabSystem::MajorVersion() { return network_.Model()->FindComputer("")->Major; }

std::optional<std::string> LabSystem::ComputerName() { return network_.Model()->FindComputer("")->Name; }

std::optional<std::string> LabSystem::UserName() {
  const auto model = network_.Model();
  return model->User.empty() ? std::nullopt : std::optional(model->User);
}

std::string LabSystem::ProgramFolder() { return machine_.ProgramFolder(); }

std::string LabSystem::WindowsFolder() { return machine_.WindowsFolder(); }

DateTime LabSystem::Now() { return machine_.Now(); }

corvane::TimeZone LabSystem::TimeZone() { return machine_.TimeZone(); }

}  // namespace corvane
