#include "logs/NotificationAssignment.h"

#include "core/PassOver.h"
#include "core/SqlText.h"
#include "core/modMain.h"
#include "logs/AssignmentLayout.h"
#include "logs/AttachmentRows.h"
#include "platform/Conversions.h"
#include "platform/ui/ListView.h"
#include "platform/ui/UiHost.h"

namespace corvane {
namespace {

void SetColumns(ui::ListView& list) {
  list.Columns = {{"Name", 2400, false}, {"E-mail", 900, false},    {"Pager", 900, false},
                  {"Popup", 900, false}, {"Database", 1200, false}, {"Syslog", 1000, false}};
  list.SetMultiSelect(true);
}

}  // namespace

bool FindListItem(const ui::ListView& list, const std::string& text) {
  for (const ui::ListItem& item : list.Items())
    if (SameText(item.Text, text)) return true;
  return false;
}

NotificationAssignment::NotificationAssignment(modMain& main, ui::ListView& available, ui::ListView& attached)
    : main_(main), available_(available), attached_(attached) {
  SetColumns(available_);
  SetColumns(attached_);
  SetAvailableWide(true);
  available_.DragTargets = {&attached_};
  attached_.DragDrop = [this] { AddSelected(); };
  available_.GotFocus = available_.MouseMove = [this] { SetAvailableWide(true); };
  attached_.GotFocus = attached_.MouseMove = [this] { SetAvailableWide(false); };
}

void NotificationAssignment::SetAvailableWide(bool wide) {
  available_.Width = wide ? assignment::WideAvailable : assignment::Narrow;
  attached_.Width = wide ? assignment::Narrow : assignment::WideChosen;
}

void NotificationAssignment::LoadNotificationList() {
  available_.Clear();
  attached_.Clear();
  const auto rows = main_.Platform.Data.NewRecordset();
  PassOver([&] {
    rows->Open("SELECT * FROM Notifications ORDER BY Name ASC", *main_.ConfigConnection, CursorType::ForwardOnly,
               LockType::ReadOnly);
    for (; !rows->Eof(); rows->MoveNext()) PassOver([&] { AddRow(available_, *rows); });
  });
}

void NotificationAssignment::LoadAssociatedNotifications(const std::string& idName) {
  PassOver([&] {
    const auto rows = main_.Platform.Data.NewRecordset();
    rows->Open("SELECT * FROM NotificationsForLogs WHERE IDName = '" + idName + "'", *main_.ConfigConnection,
               CursorType::Dynamic, LockType::Optimistic);
    for (; !rows->Eof(); rows->MoveNext())
      PassOver([&] {
        const auto notification = main_.Platform.Data.NewRecordset();
        notification->Open(
            "SELECT * FROM Notifications WHERE Name = " + QuoteSqlText(NullToEmpty(rows->Field("NotificationName"))),
            *main_.ConfigConnection, CursorType::ForwardOnly, LockType::ReadOnly);
        AddRow(attached_, *notification);
      });
  });
}

void NotificationAssignment::AddRow(ui::ListView& list, const Recordset& row) {
  ui::ListItem item;
  item.Text = NullToEmpty(row.Field("Name"));
  item.Key = "NOTIFICATION\\" + item.Text;
  item.Icon = "notification";
  for (const char* target : {"EmailRecipient", "PhoneNumber", "NetworkName", "TableName", "SyslogServer"})
    item.SubItems.push_back(NullToEmpty(row.Field(target)).empty() ? "" : "X");
  list.Add(std::move(item));
}

void NotificationAssignment::AddSelected() {
  // One that is attached already is only deselected, and nothing is added: the user sees it and presses again.
  for (int row = 0; row < available_.Count(); ++row) {
    if (!available_.Item(row).Selected || !FindListItem(attached_, available_.Item(row).Text)) continue;
    available_.Select(row, false);
    return;
  }
  for (const ui::ListItem& item : available_.Items()) {
    if (!item.Selected) continue;
    ui::ListItem copy = item;
    copy.Selected = false;
    PassOver([&] { attached_.Add(std::move(copy)); });
  }
}

void NotificationAssignment::RemoveSelected() {
  const int count = attached_.SelectedCount();
  if (count > 1 && main_.Ui.MsgBox("Are you sure you want to remove " + std::to_string(count) +
                                       " notifications from this monitoring profile?",
                                   ui::MsgIcon::Question, ui::MsgButtons::YesNo) != ui::MsgResult::Yes)
    return;
  for (int row = attached_.Count() - 1; row >= 0; --row)
    if (attached_.Item(row).Selected) attached_.Remove(row);
}

void NotificationAssignment::SaveNotifications(AttachmentRows& rows) const {
  for (const ui::ListItem& item : attached_.Items()) rows.InsertNotification(item.Text);
}

}  // namespace corvane
