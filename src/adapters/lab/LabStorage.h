#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>

struct stat;

namespace corvane {

/// A file that several processes read and replace as a whole. Readers see the old or the new bytes, never a mixture.
class LabStorage {
 public:
  explicit LabStorage(std::filesystem::path file);
  LabStorage(const LabStorage&) = delete;
  LabStorage& operator=(const LabStorage&) = delete;
  ~LabStorage();

  /// Raises 53 when there is no such file, 75 when it cannot be read.
  std::string Read();
  /// True unless the file is still the one that `Read` saw last.
  bool Changed() const;
  /// Raises 75 when the file cannot be replaced; it is the old one then.
  void Replace(const std::string& bytes);
  /// Does the work while every other caller of this routine waits, in this process and in others.
  void Exclusively(const std::function<void()>& work);

 private:
  // What tells one content of a file from another.
  struct Stamp {
    std::uint64_t Device = 0, Number = 0;
    std::int64_t Size = 0, Seconds = 0, Nanoseconds = 0;

    bool operator==(const Stamp&) const = default;
  };
  static Stamp StampOf(const struct stat& status);

  std::filesystem::path file_;
  // The file that was read stays open: while it does, no new file can get its number and be taken for it.
  int read_ = -1;
  Stamp seen_;
};

}  // namespace corvane
