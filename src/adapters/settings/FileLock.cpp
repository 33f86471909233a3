#include "adapters/settings/FileLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <thread>

namespace corvane::settings {
namespace {

using Clock = std::chrono::steady_clock;

// A process that stopped while it held the lock must not hang the console for good; so the wait is a bounded one.
int LockUntil(int file, Clock::time_point limit) {
  while (::flock(file, LOCK_EX | LOCK_NB) != 0) {
    if (errno != EWOULDBLOCK && errno != EINTR) return errno;
    if (Clock::now() >= limit) return ETIMEDOUT;
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  return 0;
}

}  // namespace

FileLock::FileLock(const std::filesystem::path& path, Missing missing) {
  const auto limit = Clock::now() + std::chrono::seconds(2);
  const int flags = O_RDWR | O_CLOEXEC | O_NONBLOCK | (missing == Missing::IsMade ? O_CREAT : 0);
  while (true) {
    file_ = ::open(path.c_str(), flags, 0666);
    if (file_ < 0) {
      error_ = errno;
      return;
    }
    error_ = LockUntil(file_, limit);
    // Whoever held the lock before has put a new file in place of this one: then it is that one which must be locked.
    if (error_ != 0 || IsCurrent(path)) return;
    Release();
  }
}

FileLock::~FileLock() { Release(); }

bool FileLock::IsCurrent(const std::filesystem::path& path) const {
  struct stat locked, present;
  return ::fstat(file_, &locked) == 0 && ::stat(path.c_str(), &present) == 0 && locked.st_dev == present.st_dev &&
         locked.st_ino == present.st_ino;
}

void FileLock::Release() {
  if (file_ >= 0) ::close(file_);
  file_ = -1;
}

}  // namespace corvane::settings
