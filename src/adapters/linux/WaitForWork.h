#pragma once

#include <chrono>
#include <functional>

namespace corvane {

/// Runs work that blocks on a thread of its own, while the caller waits and calls `whileWaiting` some 40 times a
/// second. False when the work gives false, raises, or is not done within the limit. It then goes on alone until it
/// ends, so it must own all that it uses.
bool WaitForWork(std::function<bool()> work, std::chrono::milliseconds limit,
                 const std::function<void()>& whileWaiting);

}  // namespace corvane
