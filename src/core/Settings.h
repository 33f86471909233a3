#pragma once

namespace corvane {

/// Where the console's settings lie, under the local machine's root.
inline constexpr const char* SettingsKey = "Software\\Tarnwick\\Corvane";
/// What the monitoring service tells about each log.
inline constexpr const char* StatisticsKey = "Software\\Tarnwick\\Corvane\\Statistics";

}  // namespace corvane
