#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace corvane {

/// Takes a command line apart by the rules of Windows programs: blanks and tabs part arguments, double quotes hold them
/// together, `\"` behind an odd number of backslashes is a quote, `""` within quotes is one. In the program's name a
/// backslash is a plain character.
std::vector<std::string> SplitCommandLine(std::string_view commandLine);

}  // namespace corvane
