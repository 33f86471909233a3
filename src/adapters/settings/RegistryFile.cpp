#include "adapters/settings/RegistryFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <utility>

#include "adapters/settings/FileLock.h"
#include "adapters/settings/RegistryText.h"

namespace corvane::settings {
namespace {

// A look at the file's state costs as much as several reads from memory, and a list of 10,000 logs makes 20,000 reads
// in a row. Reads that follow each other at once share a look, for about the time that a write of another process
// takes.
constexpr std::chrono::microseconds Pause{20};
constexpr std::chrono::microseconds LookInterval{1000};

long StatusOfWrite(int error) {
  switch (error) {
    case 0:
      return registry::Ok;
    case ENOENT:
      return registry::NotFound;
    case EACCES:
    case EPERM:
    case EROFS:
      return registry::AccessDenied;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return DiskFull;
    case ETIMEDOUT:
      return Busy;
    default:
      return IoFailed;
  }
}

}  // namespace

RegistryFile::RegistryFile(std::filesystem::path path) : file_(std::move(path)) {}

long RegistryFile::Create(const std::filesystem::path& path) {
  const int made = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
  if (made < 0) return errno == EEXIST ? AlreadyExists : StatusOfWrite(errno);
  ::close(made);
  const int error = SettingsFile(path).Replace(FormatRegistry(RegistryKey()), SettingsFile::Durability::Power);
  if (error != 0) ::unlink(path.c_str());
  return StatusOfWrite(error);
}

long RegistryFile::Refresh() {
  const auto now = std::chrono::steady_clock::now();
  const bool followsAtOnce = now - std::exchange(lastCall_, now) < Pause;
  if (followsAtOnce && now < nextLook_) return status_;
  if (!file_.IsUnchanged()) status_ = Load();
  nextLook_ = now + LookInterval;
  return status_;
}

long RegistryFile::Load() {
  std::string text;
  const int error = file_.Read(text);
  top_ = std::make_unique<RegistryKey>();
  ++revision_;
  if (error != 0) return error == ENOENT ? registry::NotFound : BadDatabase;
  return ParseRegistry(text, *top_) ? registry::Ok : BadDatabase;
}

long RegistryFile::Change(const Modifier& modify) {
  const FileLock lock(file_.Path(), FileLock::Missing::Fails);
  if (lock.Error() != 0) return StatusOfWrite(lock.Error());
  nextLook_ = {};
  if (const long status = Refresh()) return status;
  bool changed = true;
  const long status = modify(*top_, changed);
  ++revision_;
  if (status != registry::Ok || !changed) return status;
  const int error = file_.Replace(FormatRegistry(*top_), SettingsFile::Durability::Power);
  // What was changed in memory alone must not be seen; the next call reads the file again.
  if (error != 0) nextLook_ = {};
  return StatusOfWrite(error);
}

}  // namespace corvane::settings
