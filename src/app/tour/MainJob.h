#pragma once

namespace corvane::tour {

class Script;

/// The main job from the start to the exit: a log is put under watch, found again as it was left, and changed.
void AddMainJob(Script& script);

}  // namespace corvane::tour
