#include "adapters/linux/LinuxFiles.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <array>
#include <cerrno>

#include "adapters/linux/Descriptor.h"
#include "adapters/linux/FileErrors.h"
#include "platform/RuntimeError.h"

namespace corvane {
namespace {

Descriptor OpenOrRaise(const std::filesystem::path& file, int flags) {
  Descriptor opened(::open(file.c_str(), flags | O_CLOEXEC, 0666));
  if (!opened) RaiseFileError(errno, file);
  return opened;
}

struct stat StatusOrRaise(const std::filesystem::path& file) {
  struct stat status {};
  if (::stat(file.c_str(), &status) != 0) RaiseFileError(errno, file);
  return status;
}

class DescriptorReader : public LineReader {
 public:
  explicit DescriptorReader(Descriptor file) : file_(std::move(file)) {}

  bool ReadLine(std::string& line) override {
    line.clear();
    if (!Fill()) return false;
    while (Fill() && buffer_[next_] != '\n' && buffer_[next_] != '\r') line += buffer_[next_++];
    if (Fill() && buffer_[next_++] == '\r' && Fill() && buffer_[next_] == '\n') ++next_;
    return true;
  }

 private:
  // True while there is a character at `next_`.
  bool Fill() {
    if (next_ < end_) return true;
    ssize_t count;
    do count = ::read(file_.Get(), buffer_.data(), buffer_.size());
    while (count < 0 && errno == EINTR);
    if (count < 0) throw RuntimeError(errors::DeviceIo, "Device I/O error");
    next_ = 0;
    end_ = static_cast<std::size_t>(count);
    return end_ > 0;
  }

  Descriptor file_;
  std::array<char, 65536> buffer_;
  std::size_t next_ = 0;
  std::size_t end_ = 0;
};

}  // namespace

LinuxFiles::LinuxFiles(PathMap map) : map_(std::move(map)) {}

std::unique_ptr<LineReader> LinuxFiles::OpenForInput(const std::string& path) {
  const std::filesystem::path file = map_(path);
  Descriptor opened = OpenOrRaise(file, O_RDONLY);
  // A folder opens like a file and fails only when it is read.
  if (S_ISDIR(StatusOrRaise(file).st_mode)) RaiseFileError(EISDIR, file);
  return std::make_unique<DescriptorReader>(std::move(opened));
}

void LinuxFiles::Write(const std::string& path, std::string_view bytes) {
  const std::filesystem::path file = map_(path);
  Descriptor opened = OpenOrRaise(file, O_WRONLY | O_CREAT | O_TRUNC);
  while (!bytes.empty()) {
    const ssize_t count = ::write(opened.Get(), bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) RaiseFileError(errno, file);
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  // Some file systems report a full disk no earlier than here.
  if (::close(opened.Release()) != 0) RaiseFileError(errno, file);
}

void LinuxFiles::Delete(const std::string& path) {
  const std::filesystem::path file = map_(path);
  if (::unlink(file.c_str()) != 0) RaiseFileError(errno, file);
}

std::uintmax_t LinuxFiles::Length(const std::string& path) {
  const std::filesystem::path file = map_(path);
  const struct stat status = StatusOrRaise(file);
  if (S_ISDIR(status.st_mode)) RaiseFileError(ENOENT, file);
  return static_cast<std::uintmax_t>(status.st_size);
}

}  // namespace corvane
