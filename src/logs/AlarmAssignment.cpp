#include "logs/AlarmAssignment.h"

#include <vector>

#include "core/PassOver.h"
#include "core/SqlText.h"
#include "core/modMain.h"
#include "logs/AssignmentLayout.h"
#include "platform/ui/ListView.h"
#include "platform/ui/SimpleControls.h"

namespace corvane {
namespace {

template <class Visit>
void ForEachRow(modMain& main, const std::string& sql, CursorType cursor, LockType lock, Visit visit) {
  const auto rows = main.Platform.Data.NewRecordset();
  rows->Open(sql, *main.ConfigConnection, cursor, lock);
  for (; !rows->Eof(); rows->MoveNext()) PassOver([&] { visit(*rows); });
}

}  // namespace

AlarmAssignment::AlarmAssignment(modMain& main, const Controls& controls, const AttachmentTables& tables,
                                 bool& duplicateReported)
    : main_(main),
      controls_(controls),
      tables_(tables),
      picker_(main, controls.Catalogue, controls.Bundles),
      chosen_(main, controls.Chosen, duplicateReported) {
  controls_.Bundles.Columns = {{"Name", assignment::WideColumn, false}};
  controls_.Catalogue.DragTargets = {&controls_.Chosen};
  controls_.Bundles.DragTargets = {&controls_.Chosen};
  SetAvailableWide(true);
  WireHandlers();
}

void AlarmAssignment::WireHandlers() {
  for (ui::Control* available : std::initializer_list<ui::Control*>{&controls_.Catalogue, &controls_.Bundles})
    available->GotFocus = [this, used = available->GotFocus] {
      used();
      SetAvailableWide(true);
    };
  controls_.Chosen.GotFocus = [this] { SetAvailableWide(false); };
  controls_.Catalogue.MouseMove = [this] { SetAvailableWide(true); };
  controls_.Bundles.MouseMove = [this] { SetAvailableWide(true); };
  controls_.Chosen.MouseMove = [this] { SetAvailableWide(false); };
  controls_.Chosen.NodeClick = [this](ui::NodeId node) { controls_.Remove.Enabled = chosen_.MayRemove(node); };
  controls_.Chosen.DragDrop = [this] { AddSelected(); };
}

void AlarmAssignment::SetAvailableWide(bool wide) {
  controls_.Catalogue.Width = controls_.Bundles.Width = wide ? assignment::WideAvailable : assignment::Narrow;
  controls_.Chosen.Width = wide ? assignment::Narrow : assignment::WideChosen;
  controls_.Bundles.Columns.front().Width = wide ? assignment::WideColumn : assignment::NarrowColumn;
}

void AlarmAssignment::FillAvailable() {
  picker_.Fill();
  controls_.Chosen.Clear();
}

// Read by the log's key alone, without its domain.
void AlarmAssignment::LoadAttached(const std::string& idName) {
  PassOver([&] { LoadAssociatedAlarms(idName); });
  PassOver([&] { LoadAssociatedBundles(idName); });
}

void AlarmAssignment::LoadAssociatedAlarms(const std::string& idName) {
  Connection& connection = *main_.ConfigConnection;
  const std::string attached = std::string("SELECT * FROM ") + tables_.Singles + " WHERE IDName = '" + idName + "'";
  ForEachRow(main_, attached, CursorType::Dynamic, LockType::Optimistic, [&](Recordset& row) {
    const auto alarm = main_.Platform.Data.NewRecordset();
    alarm->Open("SELECT * FROM Alarms WHERE AlarmID = " + ToText(row.Field("AlarmID")), connection,
                CursorType::ForwardOnly, LockType::ReadOnly);
    const auto category = main_.Platform.Data.NewRecordset();
    category->Open(
        "SELECT * FROM AlarmCategories WHERE Index = " + QuoteSqlText(NullToEmpty(alarm->Field("AlarmCategory"))),
        connection, CursorType::ForwardOnly, LockType::ReadOnly);
    chosen_.AddAlarmNode(NullToEmpty(alarm->Field("Name")), OsNameOf(NullToEmpty(category->Field("OS"))));
  });
}

void AlarmAssignment::LoadAssociatedBundles(const std::string& idName) {
  const std::string attached = std::string("SELECT * FROM ") + tables_.Bundles + " WHERE IDName = '" + idName + "'";
  ForEachRow(main_, attached, CursorType::Dynamic, LockType::Optimistic, [&](Recordset& row) {
    const std::string id = ToText(row.Field("AlarmGroupID"));
    const auto bundle = main_.Platform.Data.NewRecordset();
    bundle->Open("SELECT * FROM AlarmGroups WHERE Index = " + id, *main_.ConfigConnection, CursorType::ForwardOnly,
                 LockType::ReadOnly);
    chosen_.AddBundleNode(NullToEmpty(bundle->Field("Name")), id);
  });
}

void AlarmAssignment::AddSelected() { picker_.AddSelectedTo(chosen_); }

void AlarmAssignment::RemoveSelected() { chosen_.RemoveSelected(); }

void AlarmAssignment::SaveAlarms(AttachmentRows& rows) const {
  std::vector<std::string> singles;
  for (const ui::NodeId id : controls_.Chosen.InTreeOrder()) {
    const ui::TreeNode& node = controls_.Chosen.Node(id);
    if (chosenkey::IsMember(node.Key)) continue;
    if (chosenkey::IsBundle(node.Key))
      rows.InsertBundle(tables_, chosenkey::BundleId(node.Key));
    else
      singles.push_back(rows.FindAlarmID(node.Text, chosenkey::CategoryIndex(node.Key)));
  }
  for (const std::string& alarm : singles)
    if (!rows.AlarmInAttachedBundle(tables_, alarm)) rows.InsertAlarm(tables_, alarm);
}

}  // namespace corvane
