#include "core/console/AttachmentCounts.h"

#include <algorithm>
#include <unordered_map>

#include "core/PassOver.h"
#include "core/modMain.h"

namespace corvane {
namespace {

template <class Visit>
void ForEachRow(modMain& main, const std::string& sql, Visit visit) {
  const auto rows = main.Platform.Data.NewRecordset();
  rows->Open(sql, *main.ConfigConnection, CursorType::ForwardOnly, LockType::ReadOnly);
  for (; !rows->Eof(); rows->MoveNext()) visit(*rows);
}

// How many alarms each bundle holds.
std::unordered_map<int, int> CountMembers(modMain& main) {
  std::unordered_map<int, int> members;
  ForEachRow(main,
             "SELECT AlarmGroupID, COUNT(*) AS NumRows FROM AlarmsInGroups WHERE AlarmGroupID IS NOT NULL GROUP BY "
             "AlarmGroupID",
             [&](Recordset& row) { members[ToNumber(row.Field("AlarmGroupID"))] = ToNumber(row.Field("NumRows")); });
  return members;
}

}  // namespace

AttachmentCounts::AttachmentCounts(modMain& main) : main_(main) {
  PassOver([&] { alarms_ = CountRows("AlarmsForLogs"); });
  PassOver([&] { notifications_ = CountRows("NotificationsForLogs"); });
  PassOver([&] { bundleAlarms_ = CountBundles(); });
}

// The keys come in order from the index alone; counting them here costs less than having the store group them.
CountsByLog AttachmentCounts::CountRows(const char* table) {
  CountsByLog counts;
  ForEachRow(main_, std::string("SELECT IDName FROM ") + table + " ORDER BY IDName", [&](Recordset& row) {
    const auto* idName = std::get_if<std::string>(&row.Field("IDName"));
    if (!idName) return;
    counts.Begin(*idName);
    counts.Add(1);
  });
  return counts;
}

// A bundle attached twice to one log counts once, as in the query over its ids. The store would join and sort all the
// members for that.
CountsByLog AttachmentCounts::CountBundles() {
  const auto members = CountMembers(main_);
  CountsByLog counts;
  std::vector<int> seen;
  ForEachRow(main_, "SELECT IDName, AlarmGroupID FROM AlarmGroupsForLogs ORDER BY IDName", [&](Recordset& row) {
    const auto* idName = std::get_if<std::string>(&row.Field("IDName"));
    const Value& bundle = row.Field("AlarmGroupID");
    if (!idName || IsNull(bundle)) return;
    if (counts.Begin(*idName)) seen.clear();
    const int id = ToNumber(bundle);
    if (std::find(seen.begin(), seen.end(), id) != seen.end()) return;
    seen.push_back(id);
    if (const auto found = members.find(id); found != members.end()) counts.Add(found->second);
  });
  return counts;
}

int AttachmentCounts::Alarms(const std::string& idName) const { return alarms_.Find(idName); }

int AttachmentCounts::Notifications(const std::string& idName) const { return notifications_.Find(idName); }

std::optional<int> AttachmentCounts::BundleAlarms(const std::string& idName) const {
  if (!bundleAlarms_) return std::nullopt;
  return bundleAlarms_->Find(idName);
}

}  // namespace corvane
