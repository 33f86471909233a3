#pragma once

#include <functional>
#include <string>

namespace corvane {

class modMain;

/// Every bundle in the order of the names: its key, "GROUP\" and its number, and its name. Raises when they cannot be
/// read, with those before the failure given.
void ForEachBundle(modMain& main, const std::function<void(const std::string& key, const std::string& name)>& use);

/// Every alarm of a bundle: its number and its name. Members whose alarm is gone are left out. Raises like the above.
void ForEachMember(modMain& main, const std::string& bundleId,
                   const std::function<void(const std::string& alarmId, const std::string& name)>& use);

}  // namespace corvane
