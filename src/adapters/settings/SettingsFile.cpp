#include "adapters/settings/SettingsFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <utility>

namespace corvane::settings {
namespace {

constexpr std::int64_t Second = 1'000'000'000;
// File times advance in steps of the kernel's tick, 10 ms at the coarsest.
constexpr std::int64_t TimeStep = 20'000'000;
// The smallest page of any machine.
constexpr std::uint64_t PageSize = 4096;

class Descriptor {
 public:
  explicit Descriptor(int file) : file_(file) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (file_ >= 0) ::close(file_);
  }
  int Close() { return ::close(std::exchange(file_, -1)) == 0 ? 0 : errno; }
  int Get() const { return file_; }
  bool IsOpen() const { return file_ >= 0; }

 private:
  int file_;
};

std::int64_t PresentNanoseconds() {
  timespec now{};
  ::clock_gettime(CLOCK_REALTIME, &now);
  return now.tv_sec * Second + now.tv_nsec;
}

int ReadAll(int file, std::string& bytes) {
  char buffer[65536];
  while (true) {
    const ssize_t count = ::read(file, buffer, sizeof buffer);
    if (count > 0) bytes.append(buffer, static_cast<std::size_t>(count));
    if (count == 0) return 0;
    if (count < 0 && errno != EINTR) return errno;
  }
}

int WriteAll(int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = ::write(file, bytes.data(), bytes.size());
    if (count < 0 && errno != EINTR) return errno;
    if (count > 0) bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return 0;
}

// Kept as far as this user may; a file of another owner then becomes the writer's, which the folder allows anyway.
void KeepModeAndOwner(int file, const std::filesystem::path& target) {
  struct stat status;
  if (::stat(target.c_str(), &status) != 0) return;
  if (::fchown(file, status.st_uid, status.st_gid) != 0) errno = 0;
  ::fchmod(file, status.st_mode & 07777);
}

// The file system's own times are too coarse to tell two writes apart that follow each other at once.
void SetExactTime(int file) {
  const std::int64_t now = PresentNanoseconds();
  const timespec time{static_cast<time_t>(now / Second), static_cast<long>(now % Second)};
  const timespec both[2] = {time, time};
  ::futimens(file, both);
}

// Not every file system can do it, and the change stands by then.
void SyncFolder(const std::filesystem::path& folder) {
  const Descriptor opened(::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (opened.IsOpen()) ::fsync(opened.Get());
}

// Where a link leads to, so that the link stays and its target is replaced.
std::filesystem::path TargetOf(const std::filesystem::path& path) {
  std::error_code error;
  if (!std::filesystem::is_symlink(path, error)) return path;
  auto target = std::filesystem::canonical(path, error);
  return error ? path : target;
}

}  // namespace

SettingsFile::SettingsFile(std::filesystem::path path) : path_(std::move(path)) {}

SettingsFile::Stamp SettingsFile::StampOf(const struct stat& status) {
  return {status.st_dev, status.st_ino, static_cast<std::uint64_t>(status.st_size),
          status.st_mtim.tv_sec * Second + status.st_mtim.tv_nsec};
}

bool SettingsFile::IsUnchanged() const {
  struct stat status;
  return settled_ && ::stat(path_.c_str(), &status) == 0 && StampOf(status) == stamp_;
}

int SettingsFile::Read(std::string& bytes) {
  Forget();
  bytes.clear();
  // Without O_NONBLOCK a pipe in the file's place would hang the console.
  const Descriptor file(::open(path_.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  struct stat status;
  if (!file.IsOpen() || ::fstat(file.Get(), &status) != 0) return errno;
  if (!S_ISREG(status.st_mode)) return EINVAL;
  if (const int error = ReadAll(file.Get(), bytes)) return error;
  stamp_ = StampOf(status);
  settled_ = std::llabs(PresentNanoseconds() - stamp_.Nanoseconds) > TimeStep;
  return 0;
}

int SettingsFile::WriteBeside(const std::filesystem::path& beside, const std::filesystem::path& target,
                              std::string_view bytes, Durability durability, Stamp& written) const {
  Descriptor file(::open(beside.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, 0600));
  if (!file.IsOpen()) return errno;
  KeepModeAndOwner(file.Get(), target);
  if (const int error = WriteAll(file.Get(), bytes)) return error;
  SetExactTime(file.Get());
  if (durability == Durability::Power && ::fsync(file.Get()) != 0) return errno;
  struct stat status;
  if (::fstat(file.Get(), &status) != 0) return errno;
  written = StampOf(status);
  return file.Close();
}

int SettingsFile::Replace(std::string_view bytes, Durability durability) {
  Forget();
  const std::filesystem::path target = TargetOf(path_);
  // One fixed name: what a killed process left is overwritten by the next writer, who holds the lock.
  std::filesystem::path beside = target;
  beside += ".corvane-new";
  Stamp written;
  int error = WriteBeside(beside, target, bytes, durability, written);
  if (error == 0 && ::rename(beside.c_str(), target.c_str()) != 0) error = errno;
  if (error != 0) {
    ::unlink(beside.c_str());
    return error;
  }
  stamp_ = written;
  settled_ = true;
  if (durability == Durability::Power) SyncFolder(target.parent_path());
  return 0;
}

// Within one page the kernel shows readers the old length or the new one, and a kill comes before or after.
bool SettingsFile::Append(std::string_view bytes) {
  if (bytes.empty() || stamp_.Size / PageSize != (stamp_.Size + bytes.size() - 1) / PageSize) return false;
  Descriptor file(::open(path_.c_str(), O_WRONLY | O_APPEND | O_CLOEXEC | O_NONBLOCK));
  struct stat status;
  if (!file.IsOpen() || ::fstat(file.Get(), &status) != 0 || !(StampOf(status) == stamp_)) return false;
  bool isWritten = ::write(file.Get(), bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size());
  if (isWritten)
    SetExactTime(file.Get());
  else if (::ftruncate(file.Get(), static_cast<off_t>(stamp_.Size)) != 0)
    errno = 0;
  isWritten = ::fstat(file.Get(), &status) == 0 && file.Close() == 0 && isWritten;
  stamp_ = isWritten ? StampOf(status) : Stamp();
  settled_ = isWritten;
  return isWritten;
}

}  // namespace corvane::settings
