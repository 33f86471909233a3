#include "alarms/AlarmFields.h"

#include "core/SqlText.h"
#include "core/modMain.h"
#include "platform/Conversions.h"
#include "platform/ui/UiHost.h"

namespace corvane {
namespace {

constexpr int LongestSource = 250;
constexpr int LongestName = 255;
constexpr int LongestNumber = 12;
constexpr int LeastThreshold = 2;
enum Match { Contains = 0, Exactly = 1 };
constexpr const char* NoNotification = "<NONE>";

}  // namespace

AlarmFields::AlarmFields(modMain& main, const Controls& controls) : main_(main), controls_(controls) {
  SetIndexes();
  SetLimits();
  controls_.EventDescription.Change = controls_.EventDescription.Click = [this] { NoteCaret(); };
  controls_.CRLF.Click = [this] { InsertMarker("<CRLF>"); };
  controls_.Tab.Click = [this] { InsertMarker("<TAB>"); };
}

void AlarmFields::SetIndexes() {
  int index = 0;
  for (ui::CheckBox& type : controls_.Types) type.Index = index++;
  for (const int match : {Contains, Exactly}) controls_.Match[static_cast<std::size_t>(match)].Index = match;
}

void AlarmFields::SetLimits() {
  controls_.Source.MaxLength = LongestSource;
  controls_.User.MaxLength = controls_.Computer.MaxLength = LongestName;
  controls_.EventID.MaxLength = controls_.Threshold.MaxLength = controls_.Timeout.MaxLength = LongestNumber;
  controls_.EventDescription.MultiLine = true;
}

void AlarmFields::ClearAlarmFields() {
  for (ui::TextBox* box : {&controls_.Source, &controls_.Category, &controls_.User, &controls_.Computer,
                           &controls_.EventID, &controls_.EventDescription, &controls_.Threshold, &controls_.Timeout})
    box->Text.clear();
  for (ui::CheckBox& type : controls_.Types) type.Value = false;
  ui::ChooseOption(controls_.Match, Contains);
  controls_.EventDescription.SelStart = 0;
  NoteCaret();
}

void AlarmFields::FillNotificationList() {
  ui::ComboBox& list = controls_.Notification;
  list.Clear();
  list.AddItem(NoNotification);
  list.SetListIndex(0);
  const auto rows = main_.Platform.Data.NewRecordset();
  rows->Open("SELECT Name FROM Notifications ORDER BY Name ASC", *main_.ConfigConnection, CursorType::ForwardOnly,
             LockType::ReadOnly);
  for (; !rows->Eof(); rows->MoveNext()) list.AddItem(NullToEmpty(rows->Field("Name")));
}

void AlarmFields::LoadAlarmFields(const AlarmCriteria& alarm) {
  for (std::size_t bit = 0; bit < controls_.Types.size(); ++bit)
    controls_.Types[bit].Value = (alarm.TypeMask & (1 << bit)) != 0;
  controls_.Source.Text = alarm.Source;
  controls_.Category.Text = alarm.Category;
  controls_.User.Text = alarm.User;
  controls_.Computer.Text = alarm.Computer;
  controls_.EventID.Text = alarm.EventID;
  controls_.EventDescription.Text = alarm.EventDescription;
  ui::ChooseOption(controls_.Match, alarm.MatchEntireDescription ? Exactly : Contains);
  controls_.Threshold.Text = alarm.ThresholdCount;
  controls_.Timeout.Text = alarm.ThresholdTimeout;
  if (const int entry = controls_.Notification.IndexOf(alarm.NotificationName); entry >= 0)
    controls_.Notification.SetListIndex(entry);
}

AlarmCriteria AlarmFields::Criteria() const {
  AlarmCriteria alarm;
  for (std::size_t bit = 0; bit < controls_.Types.size(); ++bit)
    alarm.TypeMask += controls_.Types[bit].Value ? 1 << bit : 0;
  alarm.Source = controls_.Source.Text;
  alarm.Category = controls_.Category.Text;
  alarm.User = controls_.User.Text;
  alarm.Computer = controls_.Computer.Text;
  alarm.EventID = controls_.EventID.Text;
  alarm.EventDescription = controls_.EventDescription.Text;
  alarm.MatchEntireDescription = controls_.Match[Exactly].Value;
  alarm.ThresholdCount = controls_.Threshold.Text;
  alarm.ThresholdTimeout = controls_.Timeout.Text;
  if (controls_.Notification.Text() != NoNotification) alarm.NotificationName = controls_.Notification.Text();
  return alarm;
}

bool AlarmFields::ValidateThresholds() {
  const std::string &limitText = controls_.Threshold.Text, &timeoutText = controls_.Timeout.Text;
  if (limitText.empty() && timeoutText.empty()) return true;
  if (limitText.empty() || timeoutText.empty())
    return Refuse("If you specfify a threshold timeout, you must also specify a threshold limit and vice versa.",
                  controls_.Timeout);
  const auto limit = ParseNumber(limitText), timeout = ParseNumber(timeoutText);
  if (!limit || !timeout)
    return Refuse("Your threshold limit and threshold timeouts must be numbers.", controls_.Threshold);
  if (*limit < LeastThreshold || *timeout < LeastThreshold)
    return Refuse(
        "Your threshold limit and timeout must be greater than 1.  If you want to detect all of these types of events, "
        "regardless of frequency, leave both threshold fields blank.",
        controls_.Threshold);
  return true;
}

bool AlarmFields::Refuse(const std::string& why, ui::TextBox& box) {
  main_.Ui.MsgBox(why, ui::MsgIcon::Exclamation);
  main_.Ui.SetFocus(box);
  return false;
}

void AlarmFields::NoteCaret() { caret_ = controls_.EventDescription.SelStart; }

// A marker goes to where the caret stood at the last change or click, wherever the keyboard has moved it since. It is a
// change like any other, with the caret behind it, so that the next marker follows this one.
void AlarmFields::InsertMarker(const std::string& marker) {
  std::string& text = controls_.EventDescription.Text;
  text.insert(BytesOfCharacters(text, static_cast<std::size_t>(caret_)), marker);
  controls_.EventDescription.SelStart = caret_ + static_cast<int>(marker.size());
  NoteCaret();
}

}  // namespace corvane
