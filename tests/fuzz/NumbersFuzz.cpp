#include <cmath>
#include <cstring>

#include "fuzz/Fuzz.h"
#include "platform/Conversions.h"
#include "platform/data/Value.h"

namespace corvane::fuzz {
namespace {

// The C library reads the same grammar and more, and is right about the value.
void CheckNumber(const std::string& text) {
  const auto number = ParseNumber(text);
  Require(number.has_value() == IsNumeric(text));
  Require(!std::isnan(Val(text)) && Val(text) == Val(text + "x"));
  Require(!number || (*number == std::strtod(Trim(text).c_str(), nullptr) && *number == Val(text)));
  std::int32_t whole = 0;
  const int error = test::ErrorOf([&] { whole = TextToInt32(text); });
  Require(error == 0 || error == (number ? errors::Overflow : errors::TypeMismatch));
  if (error != 0) return;
  Require(std::abs(*number - whole) <= 0.5 && TextToInt32(std::to_string(whole)) == whole);
  Require(ToNumber(text) == whole && ToBoolean(text) == (whole != 0));
}

}  // namespace

void Try(const std::string& input) {
  CheckNumber(input);
  const std::string upper = UpperCase(input);
  Require(upper.size() == input.size() && UpperCase(upper) == upper && SameText(input, upper));
  double number = 0;
  if (input.size() >= sizeof number) std::memcpy(&number, input.data(), sizeof number);
  if (std::isfinite(number)) Require(ParseNumber(ToText(number)) == number);
}

}  // namespace corvane::fuzz
