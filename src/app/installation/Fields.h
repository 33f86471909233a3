#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace corvane {

/// The parts of a line between the separators, blanks included; one part where there is no separator.
std::vector<std::string> SplitFields(std::string_view line, char separator);

/// A whole number in plain decimal; nothing for any other text and outside `least` to `most`.
std::optional<int> WholeNumber(std::string_view text, int least, int most);

}  // namespace corvane
