#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace corvane {

/// The content of a file. Raises `InstallationError` with the system's reason.
std::string ReadTextFile(const std::filesystem::path& file);

/// Makes a file with this content. Raises `InstallationError` with the system's reason.
void WriteTextFile(const std::filesystem::path& file, std::string_view text);

}  // namespace corvane
