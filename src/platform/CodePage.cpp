#include "platform/CodePage.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace corvane {
namespace {

// The characters of the bytes 80 to 9F; all others have the number of their byte.
constexpr std::array<char16_t, 32> Upper{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                         0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                         0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                         0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr char32_t Malformed = 0xFFFFFFFF;

bool IsAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

int TrailingBytes(unsigned char lead) {
  if (lead < 0x80) return 0;
  if (lead >= 0xC2 && lead < 0xE0) return 1;
  if (lead >= 0xE0 && lead < 0xF0) return 2;
  return lead >= 0xF0 && lead < 0xF5 ? 3 : -1;
}

// Takes one character off the front (RFC 3629); `Malformed` when there is none.
char32_t TakeCharacter(std::string_view& text) {
  const auto lead = static_cast<unsigned char>(text.front());
  const int trailing = TrailingBytes(lead);
  if (trailing < 0 || text.size() <= static_cast<std::size_t>(trailing)) return Malformed;
  char32_t character = trailing == 0 ? lead : lead & (0x3FU >> trailing);
  for (int i = 1; i <= trailing; ++i) {
    const auto byte = static_cast<unsigned char>(text[static_cast<std::size_t>(i)]);
    if ((byte & 0xC0) != 0x80) return Malformed;
    character = character << 6 | (byte & 0x3F);
  }
  constexpr std::array<char32_t, 4> least{0, 0x80, 0x800, 0x10000};
  const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
  if (character < least[static_cast<std::size_t>(trailing)] || character > 0x10FFFF || surrogate) return Malformed;
  text.remove_prefix(static_cast<std::size_t>(trailing) + 1);
  return character;
}

bool IsUtf8(std::string_view bytes) {
  while (!bytes.empty())
    if (TakeCharacter(bytes) == Malformed) return false;
  return true;
}

// The byte of a character in the code page; -1 when the page lacks it.
int ByteOf(char32_t character) {
  if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) return static_cast<int>(character);
  const auto found = std::find(Upper.begin(), Upper.end(), character);
  return found == Upper.end() ? -1 : 0x80 + static_cast<int>(found - Upper.begin());
}

void AppendUtf8(char32_t character, std::string& text) {
  if (character < 0x80) {
    text += static_cast<char>(character);
    return;
  }
  if (character < 0x800) {
    text += static_cast<char>(0xC0 | character >> 6);
  } else {
    text += static_cast<char>(0xE0 | character >> 12);
    text += static_cast<char>(0x80 | (character >> 6 & 0x3F));
  }
  text += static_cast<char>(0x80 | (character & 0x3F));
}

}  // namespace

std::string AnsiBytes(std::string_view text) {
  std::string bytes;
  while (!text.empty()) {
    const char32_t character = TakeCharacter(text);
    if (character == Malformed) {
      bytes += text.front();
      text.remove_prefix(1);
    } else {
      const int byte = ByteOf(character);
      bytes += byte < 0 ? '?' : static_cast<char>(byte);
    }
  }
  return bytes;
}

std::string BytesOfText(std::string_view text) {
  if (IsAscii(text)) return std::string(text);
  const std::string bytes = AnsiBytes(text);
  // Characters that the page lacks, and bytes that happen to be UTF-8, would be read as another text.
  return TextOfBytes(bytes) == text ? bytes : std::string(text);
}

std::string TextOfBytes(std::string_view bytes) {
  if (IsAscii(bytes) || IsUtf8(bytes)) return std::string(bytes);
  std::string text;
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    AppendUtf8(byte >= 0x80 && byte < 0xA0 ? Upper[byte - 0x80U] : byte, text);
  }
  return text;
}

}  // namespace corvane
