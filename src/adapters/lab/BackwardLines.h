#pragma once

#include <sys/types.h>

#include <cstddef>
#include <filesystem>
#include <string_view>
#include <vector>

namespace corvane {

/// The lines of a growing text file from the last one to the first. However long the file, only a block of it is held.
/// What stands behind the last line feed is still being written and is passed over.
class BackwardLines {
 public:
  /// The longest line that is read, in bytes without its line feed.
  static constexpr std::size_t LongestLine = 65536;

  explicit BackwardLines(const std::filesystem::path& file);
  BackwardLines(const BackwardLines&) = delete;
  BackwardLines& operator=(const BackwardLines&) = delete;
  ~BackwardLines();

  /// False where there is no such file or it may not be read.
  bool IsOpen() const { return file_ >= 0; }
  /// The line before the one that was given last, valid until the next call. False before the first line, for a line
  /// that is too long, and when the file cannot be read.
  bool Previous(std::string_view& line);

 private:
  static constexpr std::size_t Block = 4 * LongestLine;

  bool SkipUnfinished();
  bool Extend();

  int file_ = -1;
  // The file's bytes from `offset_` that have not been given yet lie in the first `held_` bytes of the buffer.
  std::vector<char> buffer_;
  off_t offset_ = 0;
  std::size_t held_ = 0;
  bool began_ = false;
};

}  // namespace corvane
