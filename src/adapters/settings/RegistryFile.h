#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>

#include "adapters/settings/RegistryKey.h"
#include "adapters/settings/SettingsFile.h"

namespace corvane::settings {

// Status numbers beyond those the console looks at.
inline constexpr long DiskFull = 112;
inline constexpr long Busy = 170;
inline constexpr long AlreadyExists = 183;
inline constexpr long BadDatabase = 1009;
inline constexpr long IoFailed = 1016;

/// One computer's registry in its file, kept in memory and read again whenever the file changes.
class RegistryFile {
 public:
  /// Changes the tree below `top` and gives a status; `changed` starts as true and is set to false where nothing is to
  /// be written.
  using Modifier = std::function<long(RegistryKey& top, bool& changed)>;

  explicit RegistryFile(std::filesystem::path path);

  /// Lays out a file without any key. `AlreadyExists` when there is a file.
  static long Create(const std::filesystem::path& path);

  /// Brings the tree up to date. 0, `NotFound` for a missing file, `BadDatabase` for one that cannot be read or is
  /// none.
  long Refresh();

  /// The tree as of the last `Refresh`. Its keys stay where they are while `Revision` stays the same.
  RegistryKey& Top() { return *top_; }
  std::uint64_t Revision() const { return revision_; }

  /// Changes the registry: with all others locked out, on the newest state, written before the call returns. On any
  /// other status than 0 the file is as it was.
  long Change(const Modifier& modify);

 private:
  long Load();

  SettingsFile file_;
  std::unique_ptr<RegistryKey> top_ = std::make_unique<RegistryKey>();
  std::uint64_t revision_ = 0;
  long status_ = 0;
  std::chrono::steady_clock::time_point lastCall_, nextLook_;
};

}  // namespace corvane::settings
