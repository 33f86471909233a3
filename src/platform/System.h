#pragma once

#include <optional>
#include <string>

#include "platform/DateTime.h"

namespace corvane {

/// How local time stands to that of Greenwich, in minutes: Greenwich = local time + bias.
struct TimeZone {
  enum class Season { None, Standard, Daylight };

  int Bias = 0;
  /// What is added in the two seasons, and the month in which each begins; 0 in a zone without them.
  int StandardBias = 0, DaylightBias = 0;
  int StandardMonth = 0, DaylightMonth = 0;
  Season Now = Season::None;
};

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
  /// The zone of local time. Every call asks anew.
  virtual corvane::TimeZone TimeZone() = 0;
};

}  // namespace corvane
