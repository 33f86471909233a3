#include "platform/Conversions.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <limits>

#include "platform/RuntimeError.h"

namespace corvane {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

std::size_t DigitsFrom(std::string_view text, std::size_t at) {
  while (at < text.size() && IsDigit(text[at])) ++at;
  return at;
}

// Length of the longest prefix that is a number: sign, digits with at most one point, exponent. 0 when there is none.
std::size_t NumberLength(std::string_view text) {
  std::size_t at = 0;
  if (at < text.size() && (text[at] == '+' || text[at] == '-')) ++at;
  const std::size_t whole = at;
  at = DigitsFrom(text, at);
  std::size_t digits = at - whole;
  if (at < text.size() && text[at] == '.') {
    const std::size_t fraction = DigitsFrom(text, at + 1);
    digits += fraction - at - 1;
    at = fraction;
  }
  if (digits == 0) return 0;
  if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
    std::size_t exponent = at + 1;
    if (exponent < text.size() && (text[exponent] == '+' || text[exponent] == '-')) ++exponent;
    const std::size_t end = DigitsFrom(text, exponent);
    if (end > exponent) at = end;
  }
  return at;
}

// Whether a number that no double can hold lies too near to 0: its first digit that counts stands behind the point.
bool IsTiny(std::string_view number) {
  const std::size_t mantissa = std::min(number.find_first_of("eE"), number.size());
  const std::size_t point = std::min(number.find('.'), mantissa);
  const std::size_t first = number.find_first_of("123456789");
  if (first >= mantissa) return true;
  const auto places = static_cast<std::ptrdiff_t>(point) - static_cast<std::ptrdiff_t>(first);
  int exponent = 0;
  if (mantissa < number.size()) {
    number.remove_prefix(mantissa + (number[mantissa + 1] == '+' ? 2 : 1));
    const auto status = std::from_chars(number.data(), number.data() + number.size(), exponent).ec;
    if (status == std::errc::result_out_of_range) return number.front() == '-';
  }
  return places + exponent < 0;
}

// Most numbers are a few plain digits, which need no floating point.
std::optional<std::int32_t> FewDigits(std::string_view text) {
  if (text.empty() || text.size() > 9) return std::nullopt;
  std::int32_t number = 0;
  for (const char c : text) {
    if (!IsDigit(c)) return std::nullopt;
    number = number * 10 + (c - '0');
  }
  return number;
}

double ToDouble(std::string_view number) {
  if (!number.empty() && number.front() == '+') number.remove_prefix(1);
  double value = 0;
  const auto [end, status] = std::from_chars(number.data(), number.data() + number.size(), value);
  if (status != std::errc::result_out_of_range) return value;
  if (IsTiny(number)) return 0;
  return (number.front() == '-' ? -1 : 1) * std::numeric_limits<double>::infinity();
}

// The Latin-1 letters of UTF-8 have the lead byte C3; their capitals lie 20 hexadecimal below. The division sign is
// none.
char UpperByte(char c, char before) {
  if (c >= 'a' && c <= 'z') return static_cast<char>(c - 'a' + 'A');
  const auto byte = static_cast<unsigned char>(c);
  if (static_cast<unsigned char>(before) == 0xC3 && byte >= 0xA0 && byte <= 0xBE && byte != 0xB7)
    return static_cast<char>(byte - 0x20);
  return c;
}

bool BeginsCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; }

std::string_view TrimView(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

}  // namespace

std::optional<double> ParseNumber(std::string_view text) {
  const std::string_view number = TrimView(text);
  if (number.empty() || NumberLength(number) != number.size()) return std::nullopt;
  return ToDouble(number);
}

bool IsNumeric(std::string_view text) { return ParseNumber(text).has_value(); }

std::int32_t RoundToInt32(double number) {
  const double rounded = std::nearbyint(number);
  if (!(rounded >= -2147483648.0 && rounded <= 2147483647.0)) throw RuntimeError(errors::Overflow, "Overflow");
  return static_cast<std::int32_t>(rounded);
}

std::int32_t TextToInt32(std::string_view text) {
  if (const auto few = FewDigits(text)) return *few;
  const auto number = ParseNumber(text);
  if (!number) throw RuntimeError(errors::TypeMismatch, "Type mismatch");
  return RoundToInt32(*number);
}

double Val(std::string_view text) {
  std::string packed;
  for (const char c : text)
    if (c != ' ' && c != '\t' && c != '\n' && c != '\r') packed += c;
  const std::size_t length = NumberLength(packed);
  return length == 0 ? 0 : ToDouble(std::string_view(packed).substr(0, length));
}

std::string UpperCase(std::string_view text) {
  std::string upper(text);
  char before = 0;
  for (char& c : upper) {
    const char original = c;
    c = UpperByte(c, before);
    before = original;
  }
  return upper;
}

bool SameText(std::string_view a, std::string_view b) { return a.size() == b.size() && CompareText(a, b) == 0; }

int CompareText(std::string_view a, std::string_view b) {
  const std::size_t shorter = std::min(a.size(), b.size());
  char beforeA = 0, beforeB = 0;
  for (std::size_t i = 0; i < shorter; ++i) {
    const auto left = static_cast<unsigned char>(UpperByte(a[i], beforeA));
    const auto right = static_cast<unsigned char>(UpperByte(b[i], beforeB));
    if (left != right) return left < right ? -1 : 1;
    beforeA = a[i];
    beforeB = b[i];
  }
  return a.size() == b.size() ? 0 : (a.size() < b.size() ? -1 : 1);
}

std::size_t CharacterCount(std::string_view text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), BeginsCharacter));
}

std::size_t BytesOfCharacters(std::string_view text, std::size_t characters) {
  std::size_t byte = 0;
  for (std::size_t left = characters; byte < text.size(); ++byte)
    if (BeginsCharacter(text[byte]) && left-- == 0) break;
  return byte;
}

std::string Trim(std::string_view text) { return std::string(TrimView(text)); }

std::string PadZero(long long number, int width) {
  const std::size_t sign = number < 0 ? 1 : 0;
  auto rest = static_cast<unsigned long long>(number);
  if (sign != 0) rest = 0 - rest;
  int digits = 1;
  for (auto more = rest / 10; more != 0; more /= 10) ++digits;
  std::string padded(sign + static_cast<std::size_t>(std::max(digits, width)), '0');
  for (auto place = padded.rbegin(); rest != 0; rest /= 10, ++place) *place = static_cast<char>('0' + rest % 10);
  if (sign != 0) padded.front() = '-';
  return padded;
}

}  // namespace corvane
