#pragma once

#include <array>
#include <string>
#include <string_view>

namespace corvane {

/// What a percent sign and one digit stand for in a custom notification; the service puts in what the event tells.
struct Placeholder {
  /// What the user chooses it by, and what is shown in its place.
  const char* Entry;
  const char* Shown;
};

/// All placeholders; the place in the list is the digit.
extern const std::array<Placeholder, 10> Placeholders;

/// A text with each placeholder told in words. Any other percent sign stays.
std::string ExpandPlaceholders(std::string_view text);

}  // namespace corvane
