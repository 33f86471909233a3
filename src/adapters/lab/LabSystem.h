#pragma once

#include "adapters/lab/LabNetwork.h"
#include "platform/System.h"

namespace corvane {

/// The lab's local computer and its user; the folders and the clock are those of the machine behind it. Settings: the
/// network.
class LabSystem : public System {
 public:
  LabSystem(LabNetwork& network, System& machine);

  int MajorVersion() override;
  std::optional<std::string> ComputerName() override;
  /// Nothing where the lab file names no user.
  std::optional<std::string> UserName() override;
  std::string ProgramFolder() override;
  std::string WindowsFolder() override;
  DateTime Now() override;
  corvane::TimeZone TimeZone() override;

 private:
  LabNetwork& network_;
  System& machine_;
};

}  // namespace corvane
