#pragma once

#include <functional>
#include <optional>
#include <string>

namespace corvane {

class modMain;

/// The rows of alarm bundles and their members, one by one. All routines raise when a statement fails; what was written
/// before stays. Numbers of bundles and alarms are texts in decimal.

/// An alarm as the list of a bundle's members shows it.
struct BundleAlarm {
  std::string AlarmID, Name, CategoryName, LogTypeName, OSName;
};

/// The number of the oldest bundle of a name; nothing when there is none.
std::optional<std::string> FindBundle(modMain& main, const std::string& name);
/// The same, but raises `DataNoRow` when there is none.
std::string BundleIdOf(modMain& main, const std::string& name);

/// The name and OS class of every alarm in a bundle. An alarm that is gone, or whose category is, is left out.
void ForEachAlarmIn(modMain& main, const std::string& bundleId,
                    const std::function<void(const std::string& name, const std::string& osName)>& use);
/// The alarm of a name under an OS class, which has no two of one name. Nothing when there is none.
std::optional<BundleAlarm> FindBundleAlarm(modMain& main, const std::string& name, const std::string& osName);

/// Adds a bundle without members and gives the number under which its name is found.
std::string InsertBundle(modMain& main, const std::string& name);
/// Names a bundle anew and takes all members out of it.
void ResetBundle(modMain& main, const std::string& bundleId, const std::string& name);
void InsertMember(modMain& main, const std::string& bundleId, const std::string& alarmId);

/// True when a bundle is set on a watched log. Bundles of ignore events do not count.
bool IsBundleBound(modMain& main, const std::string& bundleId);
/// Deletes all bundles of a name, then the members of the one that has the number.
void DeleteBundle(modMain& main, const std::string& name, const std::optional<std::string>& bundleId);

}  // namespace corvane
