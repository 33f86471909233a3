#include "adapters/linux/SerialPort.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <termios.h>

#include <algorithm>
#include <array>
#include <cerrno>

namespace corvane {
namespace {

// No reply of a modem is longer; what is, is noise.
constexpr std::size_t LongestLine = 256;
// Short of what a poll can count, for a deadline that never comes.
constexpr std::chrono::milliseconds LongestPoll{60000};

}  // namespace

std::optional<SerialPort> SerialPort::Open(const std::string& device) {
  // Without waiting for a carrier, which comes only with the call.
  Descriptor opened(::open(device.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC));
  SerialPort port(std::move(opened));
  // The lock keeps out those who look for it, the exclusive mode all but privileged others.
  if (!port.device_ || ::flock(port.device_.Get(), LOCK_EX | LOCK_NB) != 0 || !port.Configure()) return std::nullopt;
  ::ioctl(port.device_.Get(), TIOCEXCL);
  return port;
}

bool SerialPort::Configure() {
  termios settings{};
  if (::tcgetattr(device_.Get(), &settings) != 0) return false;
  ::cfmakeraw(&settings);
  settings.c_cflag |= CLOCAL | CREAD | HUPCL;
  settings.c_cflag &= ~static_cast<tcflag_t>(CRTSCTS | CSTOPB);
  ::cfsetspeed(&settings, B9600);
  return ::tcsetattr(device_.Get(), TCSANOW, &settings) == 0 && ::tcflush(device_.Get(), TCIOFLUSH) == 0;
}

bool SerialPort::Write(std::string_view bytes) {
  return ::write(device_.Get(), bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size());
}

SerialPort::Event SerialPort::ReadLine(std::string& line, Deadline deadline, int stop) {
  while (!TakeLine(line)) {
    const auto left =
        std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
    if (left.count() <= 0) return Event::TimeOut;
    const int wait = static_cast<int>(std::min(left, LongestPoll).count());
    std::array<pollfd, 2> waiting{{{device_.Get(), POLLIN, 0}, {stop, POLLIN, 0}}};
    if (::poll(waiting.data(), waiting.size(), wait) < 0 && errno != EINTR) return Event::Unplugged;
    if (waiting[1].revents != 0) return Event::Stopped;
    if (waiting[0].revents != 0 && !Receive()) return Event::Unplugged;
  }
  return Event::Line;
}

bool SerialPort::TakeLine(std::string& line) {
  received_.erase(0, received_.find_first_not_of("\r\n"));
  const std::size_t end = received_.find_first_of("\r\n");
  if (end == received_.npos) return false;
  line = received_.substr(0, end);
  received_.erase(0, end);
  return true;
}

bool SerialPort::Receive() {
  std::array<char, LongestLine> bytes{};
  const ssize_t count = ::read(device_.Get(), bytes.data(), bytes.size());
  if (count < 0) return errno == EAGAIN || errno == EINTR;
  received_.append(bytes.data(), static_cast<std::size_t>(count));
  if (received_.size() > 2 * LongestLine) received_.erase(0, received_.size() - LongestLine);
  return count > 0;
}

void SerialPort::DropDtr() {
  const int dtr = TIOCM_DTR;
  ::ioctl(device_.Get(), TIOCMBIC, &dtr);
  // What a dead device does not take would hold up the closing.
  ::tcflush(device_.Get(), TCIOFLUSH);
}

}  // namespace corvane
