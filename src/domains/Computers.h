#pragma once

#include <functional>
#include <string>

namespace corvane {

class modMain;
namespace ui {
class ComboBox;
}

/// Names the computers of a domain one by one, from the source that the setting `ComputerEnum` tells: 0 the browse
/// list, 1 the computer accounts, 2 the organizational unit of `OUPath`. Failures are passed over; with no computer at
/// all this one is named. Without `includeControllers` source 1 leaves domain controllers out.
void ForEachComputer(modMain& main, const std::string& domain, bool includeControllers,
                     const std::function<void(const std::string&)>& add);

/// Fills a box with all computers of a domain and chooses the first.
void FillComputerList(modMain& main, const std::string& domain, ui::ComboBox& box);

}  // namespace corvane
