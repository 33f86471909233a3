#pragma once

#include <filesystem>

namespace corvane {

/// Raises what the console's user knows for an `errno` that an operation on `file` left behind: 53 no file, 57 device,
/// 61 disk full, 70 permission denied, 76 no folder, and 75 for all else.
[[noreturn]] void RaiseFileError(int error, const std::filesystem::path& file);

}  // namespace corvane
