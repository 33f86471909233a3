#pragma once

#include <filesystem>

namespace corvane::bench {

/// Key of the one category that `FillCatalogue` makes, below the System log of OS class 2.
inline constexpr const char* BigCategory = "ALARMCAT\\2\\Bench_2";

/// Replaces the catalogue of a database by one category of so many alarms.
void FillCatalogue(const std::filesystem::path& database, int alarms);

}  // namespace corvane::bench
