#pragma once

#include <filesystem>

#include "adapters/linux/Descriptor.h"
#include "platform/Launcher.h"

namespace corvane {

/// Holds a lock on the file `corvane.lock` of the installation's folder for as long as it lives. The lock ends with the
/// process, however that ends. Settings: the installation's folder.
class LinuxSingleInstance : public SingleInstance {
 public:
  explicit LinuxSingleInstance(const std::filesystem::path& installation);

  /// Raises 70, 75 or 76 when the file can neither be opened nor made.
  bool Acquire() override;

 private:
  std::filesystem::path file_;
  Descriptor held_;
};

}  // namespace corvane
