#pragma once

#include <filesystem>
#include <vector>

namespace corvane {

/// A folder beside its destination in which something is built, and which takes the destination's place in one step
/// when it is complete. Until then nothing is to be seen there, and what is given up leaves no trace.
class ScratchFolder {
 public:
  /// Makes the folder, and those above it where they are missing. Raises `std::filesystem::filesystem_error`.
  explicit ScratchFolder(std::filesystem::path destination);
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  ~ScratchFolder();

  const std::filesystem::path& Path() const { return path_; }

  /// Moves the folder to its destination, which may be an empty folder. Raises `std::filesystem::filesystem_error`.
  void MoveToDestination();

 private:
  void MakeParents();
  void RemoveParents();

  std::filesystem::path destination_;
  std::filesystem::path path_;
  // The folders above that were missing, the innermost one first.
  std::vector<std::filesystem::path> made_;
};

}  // namespace corvane
