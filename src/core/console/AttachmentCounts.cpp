#include "core/console/AttachmentCounts.h"

#include "core/PassOver.h"
#include "core/SqlText.h"
#include "core/modMain.h"

namespace corvane {
namespace {

// Keys meet as the store compares them: the case of ASCII letters alone does not matter.
std::string Folded(std::string text) {
  for (char& c : text)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return text;
}

int Find(const std::unordered_map<std::string, int>& counts, const std::string& idName) {
  const auto found = counts.find(Folded(idName));
  return found == counts.end() ? 0 : found->second;
}

template <class Visit>
void ForEachRow(modMain& main, const std::string& sql, Visit visit) {
  const auto rows = main.Platform.Data.NewRecordset();
  rows->Open(sql, *main.ConfigConnection, CursorType::Dynamic, LockType::Optimistic);
  for (; !rows->Eof(); rows->MoveNext()) visit(*rows);
}

}  // namespace

AttachmentCounts::AttachmentCounts(modMain& main) : main_(main) {
  PassOver([&] { alarms_ = CountRows("AlarmsForLogs"); });
  PassOver([&] { notifications_ = CountRows("NotificationsForLogs"); });
  bundlesRead_ = PassOver([&] { CountBundles(); });
}

AttachmentCounts::Counts AttachmentCounts::CountRows(const char* table) {
  Counts counts;
  ForEachRow(
      main_, std::string("SELECT IDName, COUNT(*) AS NumRows FROM ") + table + " GROUP BY IDName",
      [&](Recordset& row) { counts[Folded(NullToEmpty(row.Field("IDName")))] += ToNumber(row.Field("NumRows")); });
  return counts;
}

// A bundle attached twice to one log counts once, as in the query over its ids.
void AttachmentCounts::CountBundles() {
  const char* sql =
      "SELECT Attached.IDName AS IDName, COUNT(*) AS NumRows FROM (SELECT DISTINCT IDName, AlarmGroupID FROM "
      "AlarmGroupsForLogs) AS Attached, AlarmsInGroups WHERE AlarmsInGroups.AlarmGroupID = Attached.AlarmGroupID GROUP "
      "BY Attached.IDName";
  ForEachRow(main_, sql, [&](Recordset& row) {
    bundleAlarms_[Folded(NullToEmpty(row.Field("IDName")))] += ToNumber(row.Field("NumRows"));
  });
}

int AttachmentCounts::Alarms(const std::string& idName) const { return Find(alarms_, idName); }

int AttachmentCounts::Notifications(const std::string& idName) const { return Find(notifications_, idName); }

std::optional<int> AttachmentCounts::BundleAlarms(const std::string& idName) const {
  if (!bundlesRead_) return std::nullopt;
  return Find(bundleAlarms_, idName);
}

}  // namespace corvane
