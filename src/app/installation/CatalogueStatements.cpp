#include "app/installation/CatalogueStatements.h"

#include <array>

#include "core/SqlText.h"

namespace corvane {
namespace {

const std::array<std::string, OsClassCount> OsClassNames{"Windows NT 4.0", "Windows 2000/XP/2003",
                                                         "Windows Vista/Windows Server 2008"};

}  // namespace

std::string JoinValues(const std::vector<std::string>& values) {
  std::string list;
  for (const std::string& value : values) list += (list.empty() ? "" : ", ") + value;
  return list;
}

std::string InsertOsClass(int os) {
  return "INSERT INTO OSTypes ([Index], OSName) VALUES (" + std::to_string(os) + ", " +
         QuoteSqlText(OsClassNames.at(static_cast<std::size_t>(os) - 1)) + ")";
}

std::string InsertCategory(const CatalogueCategory& category) {
  return "INSERT INTO AlarmCategories ([Index], [Name], OS, LogType) VALUES (" +
         JoinValues({QuoteSqlText(category.Index()), QuoteSqlText(category.Name), std::to_string(category.Os),
                     std::to_string(category.LogType)}) +
         ")";
}

std::string InsertAlarm(const CatalogueAlarm& alarm) {
  return "INSERT INTO Alarms ([Name], [Description], AlarmCategory, TypeMask, [Source], [Category], [User], "
         "[Computer], EventID, EventDescription, MatchEntireDescription, ThresholdCount, ThresholdTimeout, "
         "NotificationName) VALUES (" +
         JoinValues({QuoteSqlText(alarm.Name), QuoteSqlText(alarm.Comment), QuoteSqlText(alarm.CategoryIndex()),
                     std::to_string(alarm.Types), QuoteSqlText(alarm.Source), "NULL", "NULL", "NULL",
                     std::to_string(alarm.EventId), QuoteSqlText(alarm.EventDescription), BoolToText(false),
                     std::to_string(alarm.ThresholdCount), std::to_string(alarm.ThresholdTimeout), "NULL"}) +
         ")";
}

}  // namespace corvane
