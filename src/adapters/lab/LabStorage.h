#pragma once

#include <filesystem>
#include <functional>
#include <string>

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
  std::filesystem::path file_;
  int read_ = -1;
};

}  // namespace corvane
