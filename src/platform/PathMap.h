#pragma once

#include <filesystem>
#include <functional>
#include <string>

namespace corvane {

/// Tells where on this machine a path of the console's world lies: `C:\Corvane\...` is the installation's folder, any
/// other path keeps its place with `/` for `\`. Components match existing files without regard to case.
using PathMap = std::function<std::filesystem::path(const std::string& path)>;

}  // namespace corvane
