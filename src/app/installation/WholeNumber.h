#pragma once

#include <optional>
#include <string_view>

namespace corvane {

/// A whole number in plain decimal; nothing for any other text and outside `least` to `most`.
std::optional<int> WholeNumber(std::string_view text, int least, int most);

}  // namespace corvane
