#pragma once

namespace corvane::tour {

class Script;

/// The commands around the main job, on an installation that watches one log: services, custom domains, the service's
/// own events and their report, and the end of the watch while the service runs.
void AddCommands(Script& script);

}  // namespace corvane::tour
