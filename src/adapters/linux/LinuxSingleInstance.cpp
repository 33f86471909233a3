#include "adapters/linux/LinuxSingleInstance.h"

#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>

#include "adapters/linux/FileErrors.h"

namespace corvane {

LinuxSingleInstance::LinuxSingleInstance(const std::filesystem::path& installation)
    : file_(installation / "corvane.lock") {}

bool LinuxSingleInstance::Acquire() {
  if (held_) return true;
  // A program that the console starts must not inherit the lock and hold it after the console has ended.
  Descriptor opened(::open(file_.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666));
  if (!opened) RaiseFileError(errno, file_);
  if (::flock(opened.Get(), LOCK_EX | LOCK_NB) != 0) {
    if (errno == EWOULDBLOCK) return false;
    RaiseFileError(errno, file_);
  }
  held_ = std::move(opened);
  return true;
}

}  // namespace corvane
