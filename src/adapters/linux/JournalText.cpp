#include "adapters/linux/JournalText.h"

#include <array>
#include <ctime>

namespace corvane {
namespace {

constexpr const char* Replacement = "\xEF\xBF\xBD";

// The number of bytes of the well-formed character that the text begins with (RFC 3629); 0 when it begins with none.
std::size_t CharacterLength(std::string_view text) {
  const auto byte = [text](std::size_t at) { return static_cast<unsigned char>(text[at]); };
  const unsigned lead = byte(0);
  if (lead < 0x80) return 1;
  if (lead < 0xC2 || lead > 0xF4) return 0;
  const std::size_t length = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
  if (text.size() < length) return 0;
  // Neither forms that are longer than need be, nor halves of surrogate pairs, nor what lies beyond the last character.
  const unsigned least = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
  const unsigned most = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
  if (byte(1) < least || byte(1) > most) return 0;
  for (std::size_t at = 2; at < length; ++at)
    if (byte(at) >> 6 != 2) return 0;
  return length;
}

}  // namespace

std::string TextOfJournal(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  while (!bytes.empty()) {
    std::size_t length = CharacterLength(bytes);
    if (bytes[0] == '\r' || bytes[0] == '\n') {
      length = bytes.starts_with("\r\n") ? 2 : 1;
      text += "\r\n";
    } else if (length == 0 || bytes[0] == '\0') {
      length = 1;
      text += Replacement;
    } else {
      text += bytes.substr(0, length);
    }
    bytes.remove_prefix(length);
  }
  return text;
}

std::string EventTypeOf(std::string_view severity) {
  if (severity.size() != 1 || severity[0] < '0' || severity[0] > '4') return "Information";
  return severity[0] == '4' ? "Warning" : "Error";
}

std::string EventTimeOf(std::uint64_t microseconds) {
  const auto seconds = static_cast<std::time_t>(microseconds / 1000000);
  std::tm local{};
  std::array<char, 64> text{};
  // The names of days and months are English here, whatever the locale.
  if (!::localtime_r(&seconds, &local) || !::asctime_r(&local, text.data())) return "";
  const std::string_view line = text.data();
  return std::string(line.substr(0, line.find('\n')));
}

}  // namespace corvane
