#pragma once

#include <optional>
#include <string>

#include "platform/DateTime.h"

namespace corvane {

/// What the console asks about the machine and the user it runs for.
class System {
 public:
  virtual ~System() = default;

  /// Major version of the operating system: 4 is Windows NT 4.0, 5 is 2000 to 2003, 6 and above have channels.
  virtual int MajorVersion() = 0;
  /// Flat name of this computer; nothing when the call fails.
  virtual std::optional<std::string> ComputerName() = 0;
  /// Name of the logged-on user; nothing when the call fails.
  virtual std::optional<std::string> UserName() = 0;
  /// The folder the program lies in, with `\` as separator and none at the end.
  virtual std::string ProgramFolder() = 0;
  /// The system's own folder, for example `C:\WINDOWS`.
  virtual std::string WindowsFolder() = 0;
  /// The present local time. Every call reads the clock anew.
  virtual DateTime Now() = 0;
};

}  // namespace corvane
