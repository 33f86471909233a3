#pragma once

#include <string>

namespace corvane::ui {
class ListView;
}

namespace corvane {

class AttachmentRows;
class modMain;
class Recordset;

/// The tab of notifications: those that are defined on one side, those attached to the log on the other.
class NotificationAssignment {
 public:
  NotificationAssignment(modMain& main, ui::ListView& available, ui::ListView& attached);

  /// Fills the list of defined notifications and empties the attached ones.
  void LoadNotificationList();
  /// Adds what is attached to a log. Rows whose notification is gone add nothing.
  void LoadAssociatedNotifications(const std::string& idName);
  void SaveNotifications(AttachmentRows& rows) const;

  /// Attaches all selected notifications; adds nothing when one of them is attached already.
  void AddSelected();
  /// Detaches the selected notifications; asks first when there are several.
  void RemoveSelected();

 private:
  void AddRow(ui::ListView& list, const Recordset& row);
  void SetAvailableWide(bool wide);

  modMain& main_;
  ui::ListView& available_;
  ui::ListView& attached_;
};

/// True when a row of the list has the text, without regard to case.
bool FindListItem(const ui::ListView& list, const std::string& text);

}  // namespace corvane
