#pragma once

#include <optional>
#include <string>

#include "alarms/Alarm.h"

namespace corvane {

class modMain;

/// The rows of alarms and their categories. All routines raise when a statement fails; what was written before stays.

/// The criteria of an alarm, by its name and the index of its category. Nothing when there is no such row.
std::optional<AlarmCriteria> ReadAlarm(modMain& main, const std::string& name, const std::string& categoryIndex);
/// The comment of an alarm; empty when there is no such row.
std::string ReadComment(modMain& main, const std::string& name, const std::string& categoryIndex);

/// Adds an alarm, and its category first if that is new. The category stays when the alarm is refused.
void InsertAlarm(modMain& main, const AlarmCriteria& alarm, const AlarmPlace& place);
/// Changes the alarm of that name in that category. Its new category is not added, even if it is new.
void UpdateAlarm(modMain& main, const AlarmCriteria& alarm, const AlarmPlace& place, const std::string& name,
                 const std::string& categoryIndex);
/// True when the alarm of that name in that category is attached to a watched log. Ignore events and bundles do not
/// count.
bool IsBound(modMain& main, const std::string& name, const std::string& categoryIndex);
void DeleteAlarm(modMain& main, const std::string& name, const std::string& categoryIndex);

/// True unless an alarm of that name stands under the OS class, in whatever category.
bool AlarmNameIsFree(modMain& main, const std::string& name, const std::string& osIndex);
/// The number of an OS class, in decimal. Raises `DataNoRow` when there is none of that name.
std::string OSIndexOf(modMain& main, const std::string& osName);

bool CategoryHasAlarms(modMain& main, const std::string& categoryIndex);
/// Gives a category another name, and its alarms with it.
void RenameCategory(modMain& main, const std::string& oldIndex, const std::string& newIndex,
                    const std::string& newName);
void DeleteCategory(modMain& main, const std::string& categoryIndex);

}  // namespace corvane
