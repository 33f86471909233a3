#include "alarms/BundleStore.h"

#include "core/LogTypes.h"
#include "core/SqlText.h"
#include "core/modMain.h"
#include "platform/Conversions.h"

namespace corvane {
namespace {

std::unique_ptr<Recordset> Run(modMain& main, const std::string& sql) { return main.ConfigConnection->Execute(sql); }

std::unique_ptr<Recordset> BundlesOf(modMain& main, const std::string& name) {
  return Run(main, "SELECT * FROM AlarmGroups WHERE Name = " + QuoteSqlText(name));
}

bool IsEmpty(const Recordset& rows) { return rows.Eof() && rows.Bof(); }

}  // namespace

std::optional<std::string> FindBundle(modMain& main, const std::string& name) {
  const auto bundle = BundlesOf(main, name);
  return IsEmpty(*bundle) ? std::nullopt : std::optional(ToText(bundle->Field("Index")));
}

std::string BundleIdOf(modMain& main, const std::string& name) { return ToText(BundlesOf(main, name)->Field("Index")); }

void ForEachAlarmIn(modMain& main, const std::string& bundleId,
                    const std::function<void(const std::string& name, const std::string& osName)>& use) {
  const auto rows = Run(
      main,
      "SELECT * FROM AlarmCategories, OSTypes, Alarms INNER JOIN AlarmsInGroups ON Alarms.AlarmID = "
      "AlarmsInGroups.AlarmID WHERE ( ( AlarmsInGroups.AlarmGroupID = " +
          bundleId +
          " ) AND ( Alarms.AlarmID = AlarmsInGroups.AlarmID ) AND ( AlarmCategories.Index = Alarms.AlarmCategory ) AND "
          "( OSTypes.Index = AlarmCategories.OS ) )");
  for (; !rows->Eof(); rows->MoveNext())
    use(NullToEmpty(rows->Field("Alarms.Name")), NullToEmpty(rows->Field("OSName")));
}

// The join gives the alarm's category with it, so that the categories need not be read again for each alarm.
std::optional<BundleAlarm> FindBundleAlarm(modMain& main, const std::string& name, const std::string& osName) {
  const auto row =
      Run(main, "SELECT * FROM Alarms, AlarmCategories, OSTypes WHERE Alarms.Name = " + QuoteSqlText(name) +
                    " AND AlarmCategories.Index = Alarms.AlarmCategory AND OSTypes.Index = "
                    "AlarmCategories.OS AND OSTypes.OSName = " +
                    QuoteSqlText(osName));
  if (IsEmpty(*row)) return std::nullopt;
  const int logType = static_cast<int>(Val(NullToEmpty(row->Field("LogType"))));
  return BundleAlarm{ToText(row->Field("AlarmID")), name, NullToEmpty(row->Field("AlarmCategories.Name")),
                     ConvNumToLogType(logType), osName};
}

// A name may be given twice. It is then the older bundle that is found, and gets the members of the new one.
std::string InsertBundle(modMain& main, const std::string& name) {
  Run(main, "INSERT INTO AlarmGroups (Name) VALUES (" + QuoteSqlText(name) + ")");
  return BundleIdOf(main, name);
}

void ResetBundle(modMain& main, const std::string& bundleId, const std::string& name) {
  Run(main, "UPDATE AlarmGroups SET Name = " + QuoteSqlText(name) + " WHERE Index = " + bundleId);
  Run(main, "DELETE FROM AlarmsInGroups WHERE AlarmGroupID = " + bundleId);
}

void InsertMember(modMain& main, const std::string& bundleId, const std::string& alarmId) {
  Run(main, "INSERT INTO AlarmsInGroups (AlarmID, AlarmGroupID) VALUES (" + alarmId + ", " + bundleId + ")");
}

bool IsBundleBound(modMain& main, const std::string& bundleId) {
  return !IsEmpty(*Run(main, "SELECT * FROM AlarmGroupsForLogs WHERE AlarmGroupID = " + bundleId));
}

void DeleteBundle(modMain& main, const std::string& name, const std::optional<std::string>& bundleId) {
  Run(main, "DELETE FROM AlarmGroups WHERE Name = " + QuoteSqlText(name));
  if (bundleId) Run(main, "DELETE FROM AlarmsInGroups WHERE AlarmGroupID = " + *bundleId);
}

}  // namespace corvane
