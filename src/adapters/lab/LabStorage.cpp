#include "adapters/lab/LabStorage.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>

#include "platform/RuntimeError.h"

namespace corvane {
namespace {

[[noreturn]] void RaiseAccess(const std::filesystem::path& file) {
  throw RuntimeError(errors::PathFileAccess, "Path/File access error: " + file.string());
}

class OpenFile {
 public:
  OpenFile(const std::filesystem::path& file, int flags, mode_t mode)
      : Number(::open(file.c_str(), flags | O_CLOEXEC, mode)) {
    if (Number < 0) RaiseAccess(file);
  }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  ~OpenFile() { ::close(Number); }

  const int Number;
};

void WriteAll(int file, std::string_view bytes, const std::filesystem::path& name) {
  while (!bytes.empty()) {
    const ssize_t count = ::write(file, bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) RaiseAccess(name);
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  if (::fsync(file) != 0) RaiseAccess(name);
}

}  // namespace

LabStorage::LabStorage(std::filesystem::path file) : file_(std::move(file)) {}

LabStorage::~LabStorage() {
  if (read_ >= 0) ::close(read_);
}

std::string LabStorage::Read() {
  if (read_ >= 0) ::close(read_);
  read_ = ::open(file_.c_str(), O_RDONLY | O_CLOEXEC);
  if (read_ < 0 && errno == ENOENT) throw RuntimeError(errors::FileNotFound, "File not found: " + file_.string());
  if (read_ < 0) RaiseAccess(file_);
  // Taken before the bytes: a change while they are read shows as one afterwards.
  struct stat status {};
  if (::fstat(read_, &status) != 0) RaiseAccess(file_);
  seen_ = StampOf(status);
  std::string bytes;
  std::array<char, 16384> buffer;
  for (;;) {
    const ssize_t count = ::read(read_, buffer.data(), buffer.size());
    if (count == 0) return bytes;
    if (count < 0 && errno != EINTR) RaiseAccess(file_);
    if (count > 0) bytes.append(buffer.data(), static_cast<std::size_t>(count));
  }
}

bool LabStorage::Changed() const {
  struct stat present {};
  return read_ < 0 || ::stat(file_.c_str(), &present) != 0 || seen_ != StampOf(present);
}

LabStorage::Stamp LabStorage::StampOf(const struct stat& status) {
  return {status.st_dev, status.st_ino, status.st_size, status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
}

void LabStorage::Replace(const std::string& bytes) {
  struct stat old {};
  const mode_t mode = ::stat(file_.c_str(), &old) == 0 ? old.st_mode & 0777 : 0644;
  const std::filesystem::path fresh = file_.string() + ".new";
  {
    const OpenFile out(fresh, O_WRONLY | O_CREAT | O_TRUNC, mode);
    WriteAll(out.Number, bytes, fresh);
  }
  if (::rename(fresh.c_str(), file_.c_str()) != 0) RaiseAccess(file_);
}

void LabStorage::Exclusively(const std::function<void()>& work) {
  // The lock has a file of its own, since the lab file is another one after each change.
  const std::filesystem::path name = file_.string() + ".lock";
  const OpenFile lock(name, O_RDWR | O_CREAT, 0666);
  while (::flock(lock.Number, LOCK_EX) != 0)
    if (errno != EINTR) RaiseAccess(name);
  work();
}

}  // namespace corvane
