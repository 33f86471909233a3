#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace corvane {

/// The test whether a text is a number: blanks around it, a sign, a decimal point and an exponent pass.
bool IsNumeric(std::string_view text);

/// The number a numeric text stands for; nothing when it is none.
std::optional<double> ParseNumber(std::string_view text);

/// Rounds halves to the even neighbour. Raises `Overflow` outside the 32 bits of a signed number.
std::int32_t RoundToInt32(double number);

/// A numeric text as a 32-bit number, halves to even. Raises `TypeMismatch` or `Overflow`.
std::int32_t TextToInt32(std::string_view text);

/// Reads a number up to the first character that does not belong to it; 0 when there is none. Blanks are passed over.
double Val(std::string_view text);

/// The text in capitals, ASCII letters and those of the Latin-1 range of UTF-8 alike.
std::string UpperCase(std::string_view text);

/// Equality without regard to case, as `UpperCase` sees it.
bool SameText(std::string_view a, std::string_view b);

/// Order without regard to case: below 0, 0 or above 0.
int CompareText(std::string_view a, std::string_view b);

/// The number of characters (code points) of a UTF-8 text.
std::size_t CharacterCount(std::string_view text);

/// The bytes that the first characters of a UTF-8 text take; all of them when it has no more.
std::size_t BytesOfCharacters(std::string_view text, std::size_t characters);

/// The text without blanks at both ends.
std::string Trim(std::string_view text);

/// A whole number in plain decimal, filled up with zeros on the left to `width` digits.
std::string PadZero(long long number, int width);

}  // namespace corvane
