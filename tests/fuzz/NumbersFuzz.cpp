#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

#include "platform/Conversions.h"
#include "platform/RuntimeError.h"
#include "platform/data/Value.h"

using namespace corvane;

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

int SignOf(int order) { return (order > 0) - (order < 0); }

// The C library reads the same grammar and more, and is right about the value.
void CheckNumber(const std::string& text) {
  const auto number = ParseNumber(text);
  Require(number.has_value() == IsNumeric(text));
  Require(!std::isnan(Val(text)) && Val(text) == Val(text + "x"));
  if (!number) return;
  Require(*number == std::strtod(Trim(text).c_str(), nullptr));
  Require(*number == Val(text));
}

void CheckInteger(const std::string& text) {
  try {
    const std::int32_t number = TextToInt32(text);
    Require(std::abs(*ParseNumber(text) - number) <= 0.5);
    Require(TextToInt32(std::to_string(number)) == number);
    Require(ToNumber(text) == number && ToBoolean(text) == (number != 0));
  } catch (const RuntimeError& error) {
    Require(error.Number == (IsNumeric(text) ? errors::Overflow : errors::TypeMismatch));
  }
}

void CheckCase(std::string_view a, std::string_view b) {
  const std::string upper = UpperCase(a);
  Require(upper.size() == a.size() && UpperCase(upper) == upper && SameText(a, upper));
  Require(SignOf(CompareText(a, b)) == SignOf(upper.compare(UpperCase(b))));
  Require(SameText(a, b) == (CompareText(a, b) == 0));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(data, data + size);
  CheckNumber(text);
  CheckInteger(text);
  CheckCase(std::string_view(text).substr(0, size / 2), std::string_view(text).substr(size / 2));
  double number = 0;
  if (size >= sizeof number) std::memcpy(&number, data, sizeof number);
  if (std::isfinite(number)) Require(ParseNumber(ToText(number)) == number);
  return 0;
}
