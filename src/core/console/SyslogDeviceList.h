#pragma once

namespace corvane {

class modMain;
namespace ui {
class ListView;
struct StatusBar;
}  // namespace ui

/// Refills the list with the accepted syslog devices, ordered by name, and tells their number. Any failure leaves the
/// list as far as it came.
void LoadSyslogDevices(modMain& main, ui::ListView& list, ui::StatusBar& status, bool descending);

}  // namespace corvane
