#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace corvane::settings {

/// A file of settings that other processes read and change as well. Knows whether the file is still what it was when it
/// was last read or written here. Results are 0 or the system's error number.
class SettingsFile {
 public:
  enum class Durability { Process, Power };

  explicit SettingsFile(std::filesystem::path path);

  const std::filesystem::path& Path() const { return path_; }

  /// True when the file has not changed since the last `Read` or `Replace` that succeeded.
  bool IsUnchanged() const;
  /// Reads the whole content.
  int Read(std::string& bytes);
  /// Puts a new content in place of the old one in a single step, with the file's mode and owner kept: whoever reads,
  /// and whatever ends this process, there is the old content or the new one. With `Power` this also holds when the
  /// machine itself goes down. The caller holds the `FileLock`.
  int Replace(std::string_view bytes, Durability durability);
  /// Adds bytes at the end in a single step, which `Replace` takes far longer for. False, with nothing added, where
  /// that cannot be: the file is not what it was when it was last read or written, or the bytes do not fit into its
  /// last page of memory. Holds when a process ends, not when the machine goes down. The caller holds the `FileLock`.
  bool Append(std::string_view bytes);
  /// Lets the next `IsUnchanged` say false.
  void Forget() { stamp_ = {}; }

 private:
  // What tells one state of the file from another.
  struct Stamp {
    std::uint64_t Device = 0, Node = 0, Size = 0;
    std::int64_t Nanoseconds = 0;
    bool operator==(const Stamp&) const = default;
  };

  static Stamp StampOf(const struct stat& status);
  int WriteBeside(const std::filesystem::path& beside, const std::filesystem::path& target, std::string_view bytes,
                  Durability durability, Stamp& written) const;

  std::filesystem::path path_;
  Stamp stamp_;
  // False while the file is so young that its time may not show a further change.
  bool settled_ = false;
};

}  // namespace corvane::settings
