#pragma once

namespace corvane {

/// Where the console's settings lie, under the local machine's root.
inline constexpr const char* SettingsKey = "Software\\Tarnwick\\Corvane";
/// What the monitoring service tells about each log.
inline constexpr const char* StatisticsKey = "Software\\Tarnwick\\Corvane\\Statistics";
/// Where the modems of a computer are described, each below it under "000" and its number.
inline constexpr const char* ModemsKey =
    "SYSTEM\\CurrentControlSet\\Control\\Class\\{4D36E96D-E325-11CE-BFC1-08002BE10318}";

}  // namespace corvane
