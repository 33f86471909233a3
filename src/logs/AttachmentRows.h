#pragma once

#include <string>

namespace corvane {

class modMain;

/// The two tables that hold single alarms and bundles attached to logs.
struct AttachmentTables {
  const char* Singles;
  const char* Bundles;
};
inline constexpr AttachmentTables AlarmTables{"AlarmsForLogs", "AlarmGroupsForLogs"};
inline constexpr AttachmentTables IgnoreTables{"DenyAlarmsForLogs", "DenyAlarmGroupsForLogs"};

/// Writes the attachment rows of one watched log. Every statement stands on its own and raises when it fails.
class AttachmentRows {
 public:
  AttachmentRows(modMain& main, std::string idName, std::string domain);

  void InsertNotification(const std::string& name);
  void InsertBundle(const AttachmentTables& tables, const std::string& id);
  void InsertAlarm(const AttachmentTables& tables, const std::string& id);
  /// True when a bundle that is attached to the log holds the alarm. Bundles must be written before this is asked.
  bool AlarmInAttachedBundle(const AttachmentTables& tables, const std::string& alarmId);
  /// Number of the alarm of a name in a category. Raises when there is none.
  std::string FindAlarmID(const std::string& name, const std::string& categoryIndex);

 private:
  void Insert(const char* table, const char* column, const std::string& value);

  modMain& main_;
  std::string idName_;
  std::string domain_;
};

}  // namespace corvane
