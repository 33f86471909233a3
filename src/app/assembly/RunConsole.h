#pragma once

#include <functional>

namespace corvane {

struct Platform;

/// Runs one console from its start to its end; `loop` serves the main window and gives the exit code. An error that
/// nothing else caught is shown in one box, the database is closed and the exit code is 1.
int RunConsole(Platform& platform, const std::function<int()>& loop);

}  // namespace corvane
