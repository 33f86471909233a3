#include "adapters/lab/BackwardLines.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace corvane {
namespace {

constexpr std::size_t None = std::string_view::npos;

std::size_t LastLineFeed(const std::vector<char>& bytes, std::size_t count) {
  const void* found = ::memrchr(bytes.data(), '\n', count);
  return found ? static_cast<std::size_t>(static_cast<const char*>(found) - bytes.data()) : None;
}

bool ReadAll(int file, char* bytes, std::size_t count, off_t offset) {
  while (count > 0) {
    const ssize_t read = ::pread(file, bytes, count, offset);
    if (read < 0 && errno == EINTR) continue;
    // A file that has become shorter is another one by now.
    if (read <= 0) return false;
    bytes += read;
    offset += read;
    count -= static_cast<std::size_t>(read);
  }
  return true;
}

}  // namespace

BackwardLines::BackwardLines(const std::filesystem::path& file) : file_(::open(file.c_str(), O_RDONLY | O_CLOEXEC)) {
  struct stat status {};
  if (file_ < 0) return;
  if (::fstat(file_, &status) == 0 && S_ISREG(status.st_mode)) {
    offset_ = status.st_size;
    buffer_.resize(Block + LongestLine + 1);
    return;
  }
  ::close(file_);
  file_ = -1;
}

BackwardLines::~BackwardLines() {
  if (file_ >= 0) ::close(file_);
}

bool BackwardLines::Previous(std::string_view& line) {
  if (!IsOpen()) return false;
  if (!began_ && !SkipUnfinished()) return false;
  began_ = true;
  for (;;) {
    // The last byte held ends the line that is looked for.
    const std::size_t before = held_ == 0 ? None : LastLineFeed(buffer_, held_ - 1);
    if (before != None || (offset_ == 0 && held_ > 0)) {
      const std::size_t start = before == None ? 0 : before + 1;
      line = std::string_view(buffer_.data() + start, held_ - 1 - start);
      held_ = start;
      return line.size() <= LongestLine;
    }
    if (!Extend()) return false;
  }
}

bool BackwardLines::SkipUnfinished() {
  for (;;) {
    const std::size_t end = LastLineFeed(buffer_, held_);
    if (end != None) {
      held_ = end + 1;
      return true;
    }
    if (!Extend()) return false;
  }
}

// Puts the bytes before those held in front of them.
bool BackwardLines::Extend() {
  if (offset_ == 0 || held_ > LongestLine + 1) return false;
  const std::size_t count = std::min(Block, static_cast<std::size_t>(offset_));
  std::memmove(buffer_.data() + count, buffer_.data(), held_);
  offset_ -= static_cast<off_t>(count);
  held_ += count;
  return ReadAll(file_, buffer_.data(), count, offset_);
}

}  // namespace corvane
