#include "alarms/AlarmStore.h"

#include "core/ConfigDatabase.h"
#include "core/SqlText.h"
#include "core/modMain.h"
#include "platform/Conversions.h"

namespace corvane {
namespace {

std::unique_ptr<Recordset> Open(modMain& main, const std::string& sql) {
  auto rows = main.Platform.Data.NewRecordset();
  rows->Open(sql, *main.ConfigConnection, CursorType::ForwardOnly, LockType::ReadOnly);
  return rows;
}

bool HasRows(modMain& main, const std::string& sql) {
  const auto rows = Open(main, sql);
  return !(rows->Eof() && rows->Bof());
}

std::string NameAndCategory(const std::string& name, const std::string& categoryIndex) {
  return " WHERE Name = " + QuoteSqlText(name) + " AND AlarmCategory = " + QuoteSqlText(categoryIndex);
}

// A number as its box shows it: what stands for no criterion leaves the box empty.
std::string ShownNumber(const Value& field, int none) {
  const std::string number = NullToEmpty(field);
  return number == std::to_string(none) ? std::string() : number;
}

std::string NumberForSql(const std::string& text, int none) {
  return std::to_string(text.empty() ? none : TextToInt32(text));
}

std::string IndexOfName(modMain& main, const std::string& sql, const std::string& name) {
  return ToText(Open(main, sql + name + "'")->Field("Index"));
}

/// The columns of an alarm, in the order in which a new one gives them.
struct AlarmValues {
  AlarmValues(const AlarmCriteria& alarm, const AlarmPlace& place, const std::string& osIndex)
      : Name(QuoteSqlText(place.Name)),
        Description(QuoteSqlText(place.Comment)),
        AlarmCategory(QuoteSqlText(place.CategoryName + "_" + osIndex)),
        TypeMask(std::to_string(alarm.TypeMask)),
        Source(QuoteSqlText(alarm.Source)),
        Category(QuoteSqlText(alarm.Category)),
        User(QuoteSqlText(alarm.User)),
        Computer(QuoteSqlText(alarm.Computer)),
        EventID(NumberForSql(alarm.EventID, -1)),
        EventDescription(QuoteSqlText(Trim(alarm.EventDescription))),
        MatchEntireDescription(BoolToText(alarm.MatchEntireDescription)),
        ThresholdCount(NumberForSql(alarm.ThresholdCount, 0)),
        ThresholdTimeout(NumberForSql(alarm.ThresholdTimeout, 0)),
        NotificationName(QuoteSqlText(alarm.NotificationName)) {}

  std::string Name, Description, AlarmCategory, TypeMask, Source, Category, User, Computer, EventID, EventDescription,
      MatchEntireDescription, ThresholdCount, ThresholdTimeout, NotificationName;
};

}  // namespace

// Here the name stands between quotes as it is: names hold none.
std::optional<AlarmCriteria> ReadAlarm(modMain& main, const std::string& name, const std::string& categoryIndex) {
  const auto row =
      Open(main, "SELECT * FROM Alarms WHERE Name = '" + name + "' AND AlarmCategory = " + QuoteSqlText(categoryIndex));
  if (row->Eof() && row->Bof()) return std::nullopt;
  AlarmCriteria alarm;
  alarm.TypeMask = static_cast<int>(Val(NullToEmpty(row->Field("TypeMask"))));
  alarm.Source = NullToEmpty(row->Field("Source"));
  alarm.Category = NullToEmpty(row->Field("Category"));
  alarm.User = NullToEmpty(row->Field("User"));
  alarm.Computer = NullToEmpty(row->Field("Computer"));
  alarm.EventID = ShownNumber(row->Field("EventID"), -1);
  alarm.EventDescription = NullToEmpty(row->Field("EventDescription"));
  alarm.MatchEntireDescription = NullToEmpty(row->Field("MatchEntireDescription")) == BoolToText(true);
  alarm.ThresholdCount = ShownNumber(row->Field("ThresholdCount"), 0);
  alarm.ThresholdTimeout = ShownNumber(row->Field("ThresholdTimeout"), 0);
  alarm.NotificationName = NullToEmpty(row->Field("NotificationName"));
  return alarm;
}

std::string ReadComment(modMain& main, const std::string& name, const std::string& categoryIndex) {
  const auto row = Open(main, "SELECT Description FROM Alarms" + NameAndCategory(name, categoryIndex));
  return row->Eof() && row->Bof() ? std::string() : NullToEmpty(row->Field("Description"));
}

void InsertAlarm(modMain& main, const AlarmCriteria& alarm, const AlarmPlace& place) {
  const std::string os = IndexOfName(main, "SELECT Index From OSTypes WHERE OSName = '", place.OSName);
  const std::string logType = IndexOfName(main, "SELECT Index From LogTypes WHERE Name = '", place.LogTypeName);
  if (place.IsNewCategory)
    main.ConfigConnection->Execute("INSERT INTO AlarmCategories ([Index], [Name], OS, LogType) VALUES (" +
                                   QuoteSqlText(place.CategoryName + "_" + os) + ", " +
                                   QuoteSqlText(place.CategoryName) + ", " + os + ", " + logType + ")");
  const AlarmValues value(alarm, place, os);
  main.ConfigConnection->Execute(
      "INSERT INTO Alarms ([Name], [Description], AlarmCategory, TypeMask, [Source], [Category], [User], [Computer], "
      "EventID, EventDescription, MatchEntireDescription, ThresholdCount, ThresholdTimeout, NotificationName) VALUES "
      "(" +
      value.Name + ", " + value.Description + ", " + value.AlarmCategory + ", " + value.TypeMask + ", " + value.Source +
      ", " + value.Category + ", " + value.User + ", " + value.Computer + ", " + value.EventID + ", " +
      value.EventDescription + ", " + value.MatchEntireDescription + ", " + value.ThresholdCount + ", " +
      value.ThresholdTimeout + ", " + value.NotificationName + ")");
  StampLastDBUpdate(main);
}

// A category that was typed anew is not added here: the alarm waits outside the tree until somebody makes it.
void UpdateAlarm(modMain& main, const AlarmCriteria& alarm, const AlarmPlace& place, const std::string& name,
                 const std::string& categoryIndex) {
  const std::string os = IndexOfName(main, "SELECT [Index] From OSTypes WHERE OSName = '", place.OSName);
  IndexOfName(main, "SELECT [Index] From LogTypes WHERE Name = '", place.LogTypeName);
  const AlarmValues value(alarm, place, os);
  main.ConfigConnection->Execute(
      "UPDATE Alarms Set [Name] = " + value.Name + ", AlarmCategory = " + value.AlarmCategory +
      ", Description = " + value.Description + ", TypeMask = " + value.TypeMask + ", Source = " + value.Source +
      ", Category = " + value.Category + ", [User] = " + value.User + ", [Computer] = " + value.Computer +
      ", EventID = " + value.EventID + ", EventDescription = " + value.EventDescription +
      ", MatchEntireDescription = " + value.MatchEntireDescription + ", ThresholdCount = " + value.ThresholdCount +
      ", ThresholdTimeout = " + value.ThresholdTimeout + ", NotificationName = " + value.NotificationName +
      " WHERE [Name] = " + QuoteSqlText(name) + " AND AlarmCategory = " + QuoteSqlText(categoryIndex));
  StampLastDBUpdate(main);
}

// Ignore events and bundles may lose an alarm: only what watches a log on its own holds it.
bool IsBound(modMain& main, const std::string& name, const std::string& categoryIndex) {
  const auto alarm = Open(main, "SELECT * FROM Alarms" + NameAndCategory(name, categoryIndex));
  if (alarm->Eof() && alarm->Bof()) return false;
  return HasRows(main, "SELECT * FROM AlarmsForLogs WHERE AlarmID = " + ToText(alarm->Field("AlarmID")));
}

void DeleteAlarm(modMain& main, const std::string& name, const std::string& categoryIndex) {
  main.ConfigConnection->Execute("DELETE From Alarms" + NameAndCategory(name, categoryIndex));
}

// The OS class of an alarm is the last character of its category's index.
bool AlarmNameIsFree(modMain& main, const std::string& name, const std::string& osIndex) {
  const auto rows =
      Open(main, "SELECT Name, AlarmCategory FROM Alarms WHERE Name = " + QuoteSqlText(name) + " ORDER BY Name ASC");
  for (; !rows->Eof(); rows->MoveNext())
    if (NullToEmpty(rows->Field("AlarmCategory")).ends_with(osIndex)) return false;
  return true;
}

std::string OSIndexOf(modMain& main, const std::string& osName) {
  return ToText(Open(main, "SELECT * FROM OSTypes WHERE OSName = " + QuoteSqlText(osName) + " ORDER BY OSName ASC")
                    ->Field("Index"));
}

bool CategoryHasAlarms(modMain& main, const std::string& categoryIndex) {
  return HasRows(main, "SELECT * FROM Alarms WHERE AlarmCategory = " + QuoteSqlText(categoryIndex));
}

// What is attached to logs names alarms by their number, so nothing else has to follow.
void RenameCategory(modMain& main, const std::string& oldIndex, const std::string& newIndex,
                    const std::string& newName) {
  main.ConfigConnection->Execute("UPDATE AlarmCategories SET [Index] = " + QuoteSqlText(newIndex) +
                                 ", [Name] = " + QuoteSqlText(newName) + " WHERE [Index] = " + QuoteSqlText(oldIndex));
  main.ConfigConnection->Execute("UPDATE Alarms SET AlarmCategory = " + QuoteSqlText(newIndex) +
                                 " WHERE AlarmCategory = " + QuoteSqlText(oldIndex));
}

void DeleteCategory(modMain& main, const std::string& categoryIndex) {
  main.ConfigConnection->Execute("DELETE From AlarmCategories WHERE Index = " + QuoteSqlText(categoryIndex));
}

}  // namespace corvane
