#pragma once

namespace corvane {

class modMain;
namespace ui {
class ListView;
}

/// Asks, and takes the selected devices off the list of those whose messages are accepted. False when nothing is
/// selected or the user says no.
bool DeleteSyslogDevices(modMain& main, const ui::ListView& devices);

}  // namespace corvane
