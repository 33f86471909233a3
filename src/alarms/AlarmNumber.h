#pragma once

#include <string>

namespace corvane {

class modMain;

/// The number of the alarm of a name in a category, in decimal; empty when there is none. Raises when it cannot be
/// read.
std::string FindAlarmID(modMain& main, const std::string& name, const std::string& categoryIndex);

}  // namespace corvane
