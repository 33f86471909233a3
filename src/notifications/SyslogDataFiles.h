#pragma once

#include <cstdint>

namespace corvane {

class NamedPipes;
class modMain;
namespace ui {
class ListView;
}

/// What `NotifySyslogBridge` tells the bridge: the files have changed.
inline constexpr std::int32_t ReadDataFilesAgain = 1;

/// Writes the files from which the syslog bridge learns whose messages it accepts. `devices` has a row for each device,
/// its address in the second column; the files keep the order of the rows. False when a path is not set or a file could
/// not be written.
bool WriteSyslogDataFiles(modMain& main, const ui::ListView& devices);

/// Sends a number to the bridge, and waits a second at the most. True when it has answered.
bool NotifySyslogBridge(NamedPipes& pipes, std::int32_t value);

/// Writes the files, and tells the bridge once they are there. False when they could not be written.
bool UpdateSyslogBridge(modMain& main, NamedPipes& pipes, const ui::ListView& devices);

/// The same for a command of the user, who is told when the files could not be written.
void UpdateSyslogBridgeOrTell(modMain& main, NamedPipes& pipes, const ui::ListView& devices);

}  // namespace corvane
