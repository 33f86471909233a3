#pragma once

namespace corvane::tour {

class Script;

/// The first run from its notice to the main window: a domain by its DNS name, a domain account for the service, and
/// where the names of computers come from.
void AddFirstRun(Script& script);

}  // namespace corvane::tour
