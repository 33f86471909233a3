#include <cmath>
#include <cstring>

#include "fuzz/Fuzz.h"
#include "platform/Conversions.h"
#include "platform/data/Value.h"

// The C library reads the same grammar and more, and is right about the value.
void corvane::fuzz::Try(const std::string& text) {
  const std::string upper = UpperCase(text);
  Require(upper.size() == text.size() && UpperCase(upper) == upper && SameText(text, upper));
  double stored = 0;
  if (text.size() >= sizeof stored) std::memcpy(&stored, text.data(), sizeof stored);
  if (std::isfinite(stored)) Require(ParseNumber(ToText(stored)) == stored);

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
