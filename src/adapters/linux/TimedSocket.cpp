#include "adapters/linux/TimedSocket.h"

#include <sys/time.h>

#include <algorithm>
#include <array>
#include <cerrno>

namespace corvane {
namespace {

// A signal may cut any of these calls short.
template <class Call>
auto Again(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

}  // namespace

// Gives the system the time that is left; false when there is none, as no time at all would mean "without limit".
bool TimedSocket::LimitTime(int option) {
  const auto left = std::chrono::duration_cast<std::chrono::microseconds>(deadline_ - Clock::now()).count();
  if (left <= 0) return false;
  const timeval limit{left / 1000000, left % 1000000};
  return ::setsockopt(socket_.Get(), SOL_SOCKET, option, &limit, sizeof limit) == 0;
}

bool TimedSocket::Connect(const sockaddr* to, socklen_t length) {
  socket_ = Descriptor(::socket(to->sa_family, SOCK_STREAM | SOCK_CLOEXEC, 0));
  return LimitTime(SO_SNDTIMEO) && Again([&] { return ::connect(socket_.Get(), to, length); }) == 0;
}

bool TimedSocket::Send(std::string_view bytes) {
  while (!bytes.empty()) {
    if (!LimitTime(SO_SNDTIMEO)) return false;
    const ssize_t sent = Again([&] { return ::send(socket_.Get(), bytes.data(), bytes.size(), MSG_NOSIGNAL); });
    if (sent < 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(sent));
  }
  return true;
}

std::string TimedSocket::Receive(std::size_t size) {
  std::string bytes;
  std::array<char, 1024> buffer{};
  while (bytes.size() < size && LimitTime(SO_RCVTIMEO)) {
    const std::size_t wanted = std::min(size - bytes.size(), buffer.size());
    const ssize_t count = Again([&] { return ::recv(socket_.Get(), buffer.data(), wanted, 0); });
    if (count <= 0) break;
    bytes.append(buffer.data(), static_cast<std::size_t>(count));
  }
  return bytes;
}

}  // namespace corvane
