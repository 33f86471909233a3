#pragma once

#include <array>
#include <string>

#include "alarms/Alarm.h"
#include "platform/ui/ListControls.h"
#include "platform/ui/SimpleControls.h"

namespace corvane {

class modMain;

/// The fields in which the criteria of one alarm are written. The controls belong to the form.
class AlarmFields {
 public:
  struct Controls {
    std::array<ui::CheckBox, 5>& Types;
    ui::TextBox &Source, &Category, &User, &Computer, &EventID;
    std::array<ui::OptionButton, 2>& Match;
    ui::TextBox& EventDescription;
    ui::CommandButton &CRLF, &Tab;
    ui::TextBox &Threshold, &Timeout;
    ui::ComboBox& Notification;
  };

  AlarmFields(modMain& main, const Controls& controls);

  /// Empties all boxes.
  void ClearAlarmFields();
  /// Offers no notification, which is chosen, and all that there are. Raises when they cannot be read.
  void FillNotificationList();
  /// Shows an alarm. A notification that is not offered is shown as none.
  void LoadAlarmFields(const AlarmCriteria& alarm);
  AlarmCriteria Criteria() const;
  /// True when both thresholds are numbers above 1, or both are empty; else says why not and goes to the box.
  bool ValidateThresholds();

 private:
  void SetIndexes();
  void SetLimits();
  void NoteCaret();
  void InsertMarker(const std::string& marker);
  bool Refuse(const std::string& why, ui::TextBox& box);

  modMain& main_;
  Controls controls_;
  /// Where the caret stood in the description at the last change or click.
  int caret_ = 0;
};

}  // namespace corvane
