#pragma once

#include <string>

namespace corvane {

class modMain;

/// True when a computer's registry names a file for the log: the log exists there. An empty file name counts as none.
bool LogExistsOnComputer(modMain& main, const std::string& computer, const std::string& log);

}  // namespace corvane
