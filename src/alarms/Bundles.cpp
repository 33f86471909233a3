#include "alarms/Bundles.h"

#include "core/SqlText.h"
#include "core/modMain.h"

namespace corvane {

void ForEachBundle(modMain& main, const std::function<void(const std::string& key, const std::string& name)>& use) {
  const auto rows = main.Platform.Data.NewRecordset();
  rows->Open("SELECT * FROM AlarmGroups ORDER BY Name ASC", *main.ConfigConnection, CursorType::ForwardOnly,
             LockType::ReadOnly);
  for (; !rows->Eof(); rows->MoveNext())
    use("GROUP\\" + ToText(rows->Field("Index")), NullToEmpty(rows->Field("Name")));
}

void ForEachMember(modMain& main, const std::string& bundleId,
                   const std::function<void(const std::string& alarmId, const std::string& name)>& use) {
  const auto rows = main.Platform.Data.NewRecordset();
  rows->Open("SELECT * FROM AlarmsInGroups, Alarms WHERE AlarmGroupID = " + bundleId +
                 " AND Alarms.AlarmID = AlarmsInGroups.AlarmID",
             *main.ConfigConnection, CursorType::ForwardOnly, LockType::ReadOnly);
  for (; !rows->Eof(); rows->MoveNext()) use(ToText(rows->Field("Alarms.AlarmID")), NullToEmpty(rows->Field("Name")));
}

}  // namespace corvane
