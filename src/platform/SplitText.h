#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace corvane {

/// The parts of a text between the separators, blanks included; one part where there is no separator.
std::vector<std::string> SplitText(std::string_view text, char separator);

}  // namespace corvane
