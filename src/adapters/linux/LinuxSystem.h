#pragma once

#include "platform/System.h"

namespace corvane {

/// This machine and its user. Settings: the major version it answers with, since the number of its own kernel says
/// nothing about which services of the console's world it offers; 6 stands for all of them.
class LinuxSystem : public System {
 public:
  explicit LinuxSystem(int majorVersion = 6);

  int MajorVersion() override;
  /// The host name up to its first dot, in capitals.
  std::optional<std::string> ComputerName() override;
  std::optional<std::string> UserName() override;
  std::string ProgramFolder() override;
  std::string WindowsFolder() override;
  /// The zone is that of the `TZ` variable, else of the machine.
  DateTime Now() override;
  corvane::TimeZone TimeZone() override;

 private:
  int majorVersion_;
};

}  // namespace corvane
