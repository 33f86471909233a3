#pragma once

#include <cstddef>
#include <filesystem>

namespace corvane::bench {

/// Writes an Application log of so many records, every nth of which the monitoring service has logged.
void WriteServiceLog(const std::filesystem::path& file, int records, int every);

/// Steps once over every byte of a file and counts its lines.
std::size_t CountLines(const std::filesystem::path& file);

}  // namespace corvane::bench
