#pragma once

namespace corvane {

/// Raises the error of a directory call (440) for a status that is not 0.
void RaiseUnlessOk(long status);

/// Raises the error of a directory call for an object or path that is not there.
[[noreturn]] void RaiseNoObject();

}  // namespace corvane
