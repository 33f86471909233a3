#pragma once

namespace corvane {

class modMain;

/// Opens the page that tells whether there is a newer version, and notes when that was.
void CheckForUpgrades(modMain& main);

/// Asks whether to do so when the last time lies over 60 days back, and asks again 60 days later at the earliest. Does
/// nothing while no time is noted. Failures are passed over.
void RemindOfUpgrades(modMain& main);

}  // namespace corvane
