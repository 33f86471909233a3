#include "alarms/BundleMembers.h"

#include <algorithm>

#include "alarms/BundleStore.h"
#include "core/PassOver.h"
#include "core/TellFailure.h"
#include "platform/Conversions.h"

namespace corvane {
namespace {

constexpr std::string_view KeyPrefix = "ID_";

}  // namespace

BundleMembers::BundleMembers(modMain& main, ui::TreeView& picker, ui::ListView& members)
    : main_(main), picker_(picker), members_(members), catalogue_(main, picker) {
  members_.Columns = {{"Name", 3000, false}, {"Category", 2175, false}, {"Log Type", 1800, false}, {"OS", 2175, false}};
  picker_.DragTargets = {&members_};
  picker_.Expand = [this](ui::NodeId node) { TellFailure(main_, [&] { catalogue_.Expand(node); }); };
  picker_.Collapse = [this](ui::NodeId node) { TellFailure(main_, [&] { catalogue_.Collapse(node); }); };
}

// A node still picked from the last time would hold members back when they are listed, and saving would then drop them.
void BundleMembers::Begin() {
  catalogue_.FillOSNodes();
  members_.Clear();
}

void BundleMembers::Load(const std::string& bundleId) {
  ForEachAlarmIn(main_, bundleId,
                 [&](const std::string& name, const std::string& osName) { AddAlarmToBundleList(name, osName); });
}

void BundleMembers::Save(const std::string& bundleId) const {
  for (const ui::ListItem& member : members_.Items())
    InsertMember(main_, bundleId, member.Key.substr(KeyPrefix.size()));
}

// A category is opened too, so that the user sees what was added.
void BundleMembers::AddPicked() {
  const ui::NodeId picked = picker_.Selected();
  if (picked == 0) return;
  if (picker_.Node(picked).Image == alarmimage::Category && !picker_.Node(picked).Expanded) {
    catalogue_.Expand(picked);
    picker_.SetExpanded(picked, true);
  }
  catalogue_.ForEachPicked(
      picked, [&](const std::string& name, const std::string& osName) { AddAlarmToBundleList(name, osName); });
}

// An alarm that is listed already has its key in the list, and is passed over without a word.
void BundleMembers::AddAlarmToBundleList(const std::string& name, const std::string& osName) {
  if (RefusesPicked()) return;
  const auto alarm = FindBundleAlarm(main_, name, osName);
  if (!alarm) return;
  PassOver([&] {
    members_.Add({std::string(KeyPrefix) + alarm->AlarmID,
                  alarm->Name,
                  {alarm->CategoryName, alarm->LogTypeName, alarm->OSName},
                  alarmimage::Alarm});
  });
}

// The text of the picked node is compared, not the alarm at hand: so an alarm of the same name under another OS class
// counts as the same when it is picked by itself, and the alarms of a category are told apart by their keys alone.
bool BundleMembers::RefusesPicked() {
  if (picker_.Selected() == 0) return false;
  const std::string picked = UpperCase(picker_.Node(picker_.Selected()).Text);
  const auto& listed = members_.Items();
  if (std::none_of(listed.begin(), listed.end(), [&](const auto& item) { return UpperCase(item.Text) == picked; }))
    return false;
  if (!duplicateReported_) main_.Ui.MsgBox("You cannot select the same alarm twice!", ui::MsgIcon::Exclamation);
  duplicateReported_ = true;
  return true;
}

void BundleMembers::RemoveSelected() {
  const int count = members_.SelectedCount();
  if (count > 1 &&
      main_.Ui.MsgBox("Are you sure you want to delete " + std::to_string(count) + " alarms from this bundle?",
                      ui::MsgIcon::Question, ui::MsgButtons::YesNo) != ui::MsgResult::Yes)
    return;
  for (int row = members_.Count() - 1; row >= 0; --row)
    if (members_.Item(row).Selected) members_.Remove(row);
}

}  // namespace corvane
