#include "adapters/linux/NetPopup.h"

#include <algorithm>
#include <utility>

#include "platform/Conversions.h"

namespace corvane {
namespace {

// Packets of a session.
constexpr std::uint8_t SessionMessage = 0x00, SessionRequest = 0x81, SessionAccepted = 0x82, KeepAlive = 0x85;
// Commands, and the kinds of what they carry.
constexpr std::uint8_t StartMessage = 0xD5, EndMessage = 0xD6, TextOfMessage = 0xD7;
constexpr char NameFormat = 0x04, TextFormat = 0x01;
// What a computer's name is used for.
constexpr char Workstation = 0x00, Messenger = 0x03;

constexpr std::size_t NameBytes = 15, BlockBytes = 128;
// Signature, command, status (4 bytes) and what is of no use here; behind them the number of words.
constexpr std::size_t HeaderBytes = 32, StatusAt = 5, StatusBytes = 4;
constexpr std::string_view Signature = "\xFFSMB";

std::string LittleEndian(std::size_t number) {
  return {static_cast<char>(number & 0xFF), static_cast<char>(number >> 8 & 0xFF)};
}

std::string BigEndian(std::size_t number) {
  return {static_cast<char>(number >> 8 & 0xFF), static_cast<char>(number & 0xFF)};
}

std::string ComputerName(std::string_view name) { return UpperCase(name.substr(0, NameBytes)); }

// A name as it stands in a session request: 16 bytes, each as two letters.
std::string EncodedName(const std::string& name, char use) {
  std::string padded = name;
  padded.resize(NameBytes, ' ');
  padded += use;
  std::string encoded(1, static_cast<char>(2 * padded.size()));
  for (const char c : padded) {
    encoded += static_cast<char>('A' + (static_cast<unsigned char>(c) >> 4));
    encoded += static_cast<char>('A' + (c & 0x0F));
  }
  return encoded + '\0';
}

std::string NameField(const std::string& name) { return NameFormat + name + '\0'; }

std::string TextField(std::string_view text) { return TextFormat + LittleEndian(text.size()) + std::string(text); }

}  // namespace

NetPopup::NetPopup(std::string from, std::string to, std::chrono::milliseconds limit)
    : from_(ComputerName(from)), to_(ComputerName(to)), socket_(limit) {}

bool NetPopup::SendPacket(std::uint8_t type, std::string_view body) {
  std::string packet(1, static_cast<char>(type));
  packet += '\0';
  return socket_.Send(packet + BigEndian(body.size()) + std::string(body));
}

// The body of the next packet; nothing when it is of another type.
std::optional<std::string> NetPopup::ReceivePacket(std::uint8_t type) {
  for (;;) {
    const std::string head = socket_.Receive(4);
    if (head.size() < 4) return std::nullopt;
    const auto byte = [&](std::size_t at) { return static_cast<std::uint8_t>(head[at]); };
    const std::size_t length = byte(2) << 8U | byte(3);
    std::string body = socket_.Receive(length);
    if (byte(0) == KeepAlive) continue;
    if (byte(0) != type || body.size() < length) return std::nullopt;
    return body;
  }
}

bool NetPopup::OpenSession(const Endpoint& computer) {
  const HostAddresses addresses = computer.Resolve(SOCK_STREAM);
  const addrinfo* address = addresses.get();
  while (address && !socket_.Connect(address->ai_addr, address->ai_addrlen)) address = address->ai_next;
  if (!address) return false;
  const std::string names = EncodedName(to_, Messenger) + EncodedName(from_, Workstation);
  return SendPacket(SessionRequest, names) && ReceivePacket(SessionAccepted);
}

// The words of the answer; nothing when the request was refused.
std::optional<std::string> NetPopup::Request(std::uint8_t command, std::string_view words, std::string_view bytes) {
  std::string packet(Signature);
  packet += static_cast<char>(command);
  packet.resize(HeaderBytes, '\0');
  packet += static_cast<char>(words.size() / 2);
  packet += std::string(words) + LittleEndian(bytes.size()) + std::string(bytes);
  if (!SendPacket(SessionMessage, packet)) return std::nullopt;
  const auto answer = ReceivePacket(SessionMessage);
  if (!answer || answer->size() <= HeaderBytes || !answer->starts_with(packet.substr(0, StatusAt)) ||
      answer->substr(StatusAt, StatusBytes) != std::string(StatusBytes, '\0'))
    return std::nullopt;
  return answer->substr(HeaderBytes + 1, 2U * static_cast<std::uint8_t>((*answer)[HeaderBytes]));
}

bool NetPopup::Send(const Endpoint& computer, std::string_view text) {
  if (!OpenSession(computer)) return false;
  const auto group = Request(StartMessage, {}, NameField(from_) + NameField(to_));
  if (!group) return false;
  // Samba numbers no messages and leaves the number out.
  const std::string number = group->size() < 2 ? LittleEndian(0) : group->substr(0, 2);
  for (text = text.substr(0, LongestText); !text.empty(); text.remove_prefix(std::min(text.size(), BlockBytes)))
    if (!Request(TextOfMessage, number, TextField(text.substr(0, BlockBytes)))) return false;
  return Request(EndMessage, number, {}).has_value();
}

}  // namespace corvane
