#pragma once

#include <filesystem>

namespace corvane::settings {

/// Holds a file against all others that change it through a lock of this kind, until it is destroyed. The lock lies on
/// the file itself, so that no other file has to stand beside it.
class FileLock {
 public:
  enum class Missing { Fails, IsMade };

  /// Waits up to two seconds for the file. The file must be writable.
  FileLock(const std::filesystem::path& path, Missing missing);
  FileLock(const FileLock&) = delete;
  FileLock& operator=(const FileLock&) = delete;
  ~FileLock();

  /// 0 when the lock is held, else the system's error number; `ETIMEDOUT` when another process did not let go.
  int Error() const { return error_; }

 private:
  bool IsCurrent(const std::filesystem::path& path) const;
  void Release();

  int file_ = -1;
  int error_ = 0;
};

}  // namespace corvane::settings
