#pragma once

#include <string>

namespace corvane {

class modMain;
namespace ui {
class ListView;
struct StatusBar;
}  // namespace ui

/// Columns of the list of watched logs, from 0. The last two are keys to sort by and are not shown.
namespace logcolumn {
inline constexpr int Computer = 0;
inline constexpr int Log = 1;
inline constexpr int LastCheck = 2;
inline constexpr int ScanDuration = 3;
inline constexpr int Alarms = 4;
inline constexpr int Notifications = 5;
inline constexpr int DateNum = 6;
inline constexpr int SecsNum = 7;
}  // namespace logcolumn

/// Refills the list with the watched logs of a domain, ordered by computer and log, and tells their number. Goes on at
/// the next statement after any failure, so that the list may stay empty or partly filled.
void LoadWatchedLogs(modMain& main, const std::string& domain, ui::ListView& list, ui::StatusBar& status,
                     bool descending);

}  // namespace corvane
