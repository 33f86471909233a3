#pragma once

namespace corvane::tour {

class Script;

/// The catalogue of alarms maintained: a category renamed, an alarm written, a bundle made of it, both carried away in a
/// file and read in again.
void AddAlarmCatalogue(Script& script);

}  // namespace corvane::tour
