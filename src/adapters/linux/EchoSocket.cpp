#include "adapters/linux/EchoSocket.h"

#include <netdb.h>
#include <netinet/in.h>
#include <poll.h>

#include <cerrno>
#include <random>
#include <system_error>

#include "platform/RuntimeError.h"

namespace corvane {
namespace {

// An echo message: type, code, checksum, identifier, sequence number (two bytes each but the first two), data.
constexpr std::size_t HeaderBytes = 8;

struct EchoTypes {
  std::uint8_t Request, Reply;
};

EchoTypes TypesOf(int family) {
  if (family == AF_INET6) return {128, 129};
  return {8, 0};
}

std::uint8_t ByteAt(std::string_view packet, std::size_t at) { return static_cast<std::uint8_t>(packet[at]); }

std::uint16_t NumberAt(std::string_view packet, std::size_t at) {
  return static_cast<std::uint16_t>(ByteAt(packet, at) << 8 | ByteAt(packet, at + 1));
}

void PutNumber(std::string& packet, std::size_t at, std::uint16_t number) {
  packet[at] = static_cast<char>(number >> 8);
  packet[at + 1] = static_cast<char>(number & 0xFF);
}

// RFC 1071, for a packet of even length.
std::uint16_t Checksum(std::string_view packet) {
  std::uint32_t sum = 0;
  for (std::size_t at = 0; at < packet.size(); at += 2) sum += NumberAt(packet, at);
  while (sum >> 16 != 0) sum = (sum & 0xFFFF) + (sum >> 16);
  return static_cast<std::uint16_t>(~sum);
}

Descriptor OpenEcho(int family, int type) {
  const int protocol = family == AF_INET6 ? static_cast<int>(IPPROTO_ICMPV6) : static_cast<int>(IPPROTO_ICMP);
  return Descriptor(::socket(family, type | SOCK_CLOEXEC, protocol));
}

[[noreturn]] void RaiseSocketError(const std::string& what) {
  throw RuntimeError(errors::PathFileAccess, what + ": " + std::generic_category().message(errno));
}

// A raw IPv4 socket hands out the whole datagram; the message begins behind its header.
std::string_view WithoutIpHeader(std::string_view packet) {
  const std::size_t length = packet.empty() ? 0 : (ByteAt(packet, 0) & 0x0Fu) * 4u;
  return packet.substr(std::min(length, packet.size()));
}

}  // namespace

EchoSocket::EchoSocket(int family) : family_(family) {
  // Data drawn by lot tells our replies from those to another process that chose the same numbers.
  std::random_device lot;
  identifier_ = static_cast<std::uint16_t>(lot());
  for (char& byte : data_) byte = static_cast<char>(lot());
  socket_ = OpenEcho(family, SOCK_DGRAM);
  if (socket_) return;
  socket_ = OpenEcho(family, SOCK_RAW);
  raw_ = true;
  if (socket_) return;
  if (errno != EPERM && errno != EACCES) RaiseSocketError("An ICMP socket cannot be opened");
  throw RuntimeError(errors::PermissionDenied,
                     "This user may not send ICMP echo requests.  The system setting net.ipv4.ping_group_range or the "
                     "capability CAP_NET_RAW permits it.");
}

std::string EchoSocket::Request(std::uint16_t sequence) const {
  std::string packet(HeaderBytes, '\0');
  packet[0] = static_cast<char>(TypesOf(family_).Request);
  PutNumber(packet, 4, identifier_);
  PutNumber(packet, 6, sequence);
  packet.append(data_.data(), data_.size());
  // For IPv6 the sum covers addresses that only the system knows, so it fills it in itself.
  if (family_ == AF_INET) PutNumber(packet, 2, Checksum(packet));
  return packet;
}

void EchoSocket::Send(const sockaddr* to, socklen_t length, std::uint16_t sequence) {
  const std::string packet = Request(sequence);
  if (::sendto(socket_.Get(), packet.data(), packet.size(), 0, to, length) < 0)
    RaiseSocketError("The echo request cannot be sent");
}

bool EchoSocket::IsReply(std::string_view packet, std::uint16_t sequence) const {
  if (packet.size() != HeaderBytes + DataBytes || ByteAt(packet, 0) != TypesOf(family_).Reply) return false;
  // A datagram socket bears an identifier of the system's choice and gets only replies that carry it.
  if (raw_ && NumberAt(packet, 4) != identifier_) return false;
  return NumberAt(packet, 6) == sequence && packet.substr(HeaderBytes) == std::string_view(data_.data(), data_.size());
}

std::optional<std::string> EchoSocket::ReceiveReply(std::uint16_t sequence) {
  std::array<char, 2048> buffer{};
  sockaddr_storage from{};
  socklen_t length = sizeof from;
  const ssize_t count = ::recvfrom(socket_.Get(), buffer.data(), buffer.size(), MSG_DONTWAIT,
                                   reinterpret_cast<sockaddr*>(&from), &length);
  if (count < 0) return std::nullopt;
  std::string_view packet(buffer.data(), static_cast<std::size_t>(count));
  if (raw_ && family_ == AF_INET) packet = WithoutIpHeader(packet);
  if (!IsReply(packet, sequence)) return std::nullopt;
  std::array<char, NI_MAXHOST> address{};
  if (::getnameinfo(reinterpret_cast<sockaddr*>(&from), length, address.data(), address.size(), nullptr, 0,
                    NI_NUMERICHOST) != 0)
    return std::nullopt;
  return address.data();
}

std::optional<std::string> EchoSocket::Await(std::uint16_t sequence, std::chrono::milliseconds timeout) {
  using Clock = std::chrono::steady_clock;
  const Clock::time_point deadline = Clock::now() + timeout;
  for (;;) {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now());
    if (left.count() < 0) return std::nullopt;
    pollfd waiting{socket_.Get(), POLLIN, 0};
    const int ready = ::poll(&waiting, 1, static_cast<int>(left.count()));
    if (ready < 0 && errno != EINTR) RaiseSocketError("The echo reply cannot be received");
    if (ready == 0) return std::nullopt;
    if (ready < 0) continue;
    if (auto address = ReceiveReply(sequence)) return address;
  }
}

}  // namespace corvane
