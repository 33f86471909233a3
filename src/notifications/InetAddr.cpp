#include "notifications/InetAddr.h"

#include <charconv>
#include <optional>

namespace corvane {
namespace {

constexpr int MostParts = 4;
constexpr std::string_view Digits = "0123456789";
constexpr std::string_view HexDigits = "0123456789abcdefABCDEF";
constexpr std::string_view Blanks = " \t\n\v\f\r";

bool BeginsWithOneOf(std::string_view text, std::string_view characters) {
  return !text.empty() && characters.find(text.front()) != characters.npos;
}

// An x that no digit follows belongs to no number: then only the zero before it is read.
int TakeBase(std::string_view& text) {
  if (text.front() != '0') return 10;
  const bool hex = text.size() > 2 && (text[1] == 'x' || text[1] == 'X') && BeginsWithOneOf(text.substr(2), HexDigits);
  if (!hex) return 8;
  text.remove_prefix(2);
  return 16;
}

// Takes one number off the front; nothing where there is none or it has more than 32 bits.
std::optional<std::uint32_t> TakeNumber(std::string_view& text) {
  if (!BeginsWithOneOf(text, Digits)) return std::nullopt;
  const int base = TakeBase(text);
  std::uint32_t number = 0;
  const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), number, base);
  if (failure != std::errc()) return std::nullopt;
  text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  return number;
}

}  // namespace

std::uint32_t InetAddr(std::string_view text) {
  std::uint32_t address = 0;
  for (int part = 1;; ++part) {
    const auto number = TakeNumber(text);
    if (!number) return NoAddress;
    if (!BeginsWithOneOf(text, ".")) {
      const bool fits = std::uint64_t{*number} < std::uint64_t{1} << 8 * (MostParts + 1 - part);
      const bool ends = text.empty() || BeginsWithOneOf(text, Blanks);
      return fits && ends ? address | *number : NoAddress;
    }
    if (part == MostParts || *number > 0xFF) return NoAddress;
    address |= *number << 8 * (MostParts - part);
    text.remove_prefix(1);
  }
}

}  // namespace corvane
