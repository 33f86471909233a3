#pragma once

#include <cstdint>
#include <string>
#include <variant>

namespace corvane {

/// The content of a field: Null, a number, a boolean or a text.
using Value = std::variant<std::monostate, std::int64_t, double, bool, std::string>;

inline bool IsNull(const Value& value) { return std::holds_alternative<std::monostate>(value); }

/// The value as text: numbers in plain decimal, booleans as "True" and "False". A Null raises error 94.
std::string ToText(const Value& value);

/// The value as a 32-bit number: texts must be numeric, fractions round half to even, True is -1. Raises 94 for Null,
/// 13 for a text that is no number, 6 beyond 32 bits.
std::int32_t ToNumber(const Value& value);

/// The value as a boolean: a number is true unless 0; texts are "True", "False" or numeric. Raises 94 or 13.
bool ToBoolean(const Value& value);

}  // namespace corvane
