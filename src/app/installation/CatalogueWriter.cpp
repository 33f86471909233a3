#include "app/installation/CatalogueWriter.h"

#include <array>

#include "core/LogTypes.h"
#include "core/PassOver.h"
#include "core/SqlText.h"
#include "platform/RuntimeError.h"
#include "platform/data/Connection.h"

namespace corvane {
namespace {

const std::array<std::string, 3> OsClassNames{"Windows NT 4.0", "Windows 2000/XP/2003",
                                              "Windows Vista/Windows Server 2008"};

std::string Joined(const std::vector<std::string>& values) {
  std::string list;
  for (const std::string& value : values) list += (list.empty() ? "" : ", ") + value;
  return list;
}

}  // namespace

void CatalogueWriter::Write(const Catalogue& catalogue) {
  connection_.BeginTrans();
  try {
    WriteAll(catalogue);
    connection_.CommitTrans();
  } catch (const RuntimeError&) {
    // Some failures have ended the transaction themselves; the reason to tell is theirs.
    PassOver([&] { connection_.RollbackTrans(); });
    throw;
  }
}

void CatalogueWriter::WriteAll(const Catalogue& catalogue) {
  WriteClassesAndLogs();
  for (const auto& category : catalogue.Categories) Write(category);
  for (const auto& alarm : catalogue.Alarms) Write(alarm);
  for (const auto& bundle : catalogue.Bundles) Write(bundle, catalogue.Alarms);
  for (const auto& notification : catalogue.Notifications) Write(notification);
}

void CatalogueWriter::WriteClassesAndLogs() {
  for (std::size_t i = 0; i < OsClassNames.size(); ++i)
    connection_.Execute("INSERT INTO OSTypes ([Index], OSName) VALUES (" + std::to_string(i + 1) + ", " +
                        QuoteSqlText(OsClassNames[i]) + ")");
  for (std::size_t i = 0; i < LogTypeNames.size(); ++i)
    connection_.Execute("INSERT INTO LogTypes ([Index], [Name]) VALUES (" + std::to_string(i + 1) + ", " +
                        QuoteSqlText(LogTypeNames[i]) + ")");
}

void CatalogueWriter::Write(const CatalogueCategory& category) {
  connection_.Execute("INSERT INTO AlarmCategories ([Index], [Name], OS, LogType) VALUES (" +
                      Joined({QuoteSqlText(category.Index()), QuoteSqlText(category.Name), std::to_string(category.Os),
                              std::to_string(category.LogType)}) +
                      ")");
}

void CatalogueWriter::Write(const CatalogueAlarm& alarm) {
  connection_.Execute(
      "INSERT INTO Alarms ([Name], [Description], AlarmCategory, TypeMask, [Source], [Category], [User], [Computer], "
      "EventID, EventDescription, MatchEntireDescription, ThresholdCount, ThresholdTimeout, NotificationName) VALUES "
      "(" +
      Joined({QuoteSqlText(alarm.Name), QuoteSqlText(alarm.Comment), QuoteSqlText(alarm.CategoryIndex()),
              std::to_string(alarm.Types), QuoteSqlText(alarm.Source), "NULL", "NULL", "NULL",
              std::to_string(alarm.EventId), QuoteSqlText(alarm.EventDescription), BoolToText(false),
              std::to_string(alarm.ThresholdCount), std::to_string(alarm.ThresholdTimeout), "NULL"}) +
      ")");
}

void CatalogueWriter::Write(const CatalogueBundle& bundle, const std::vector<CatalogueAlarm>& alarms) {
  connection_.Execute("INSERT INTO AlarmGroups (Name) VALUES (" + QuoteSqlText(bundle.Name) + ")");
  const auto group = connection_.Execute("SELECT [Index] FROM AlarmGroups WHERE Name = " + QuoteSqlText(bundle.Name));
  for (const std::size_t member : bundle.Members) {
    const CatalogueAlarm& alarm = alarms[member];
    const auto row = connection_.Execute("SELECT AlarmID FROM Alarms WHERE Name = " + QuoteSqlText(alarm.Name) +
                                         " AND AlarmCategory = " + QuoteSqlText(alarm.CategoryIndex()));
    connection_.Execute("INSERT INTO AlarmsInGroups (AlarmID, AlarmGroupID) VALUES (" + ToText(row->Field("AlarmID")) +
                        ", " + ToText(group->Field("Index")) + ")");
  }
}

void CatalogueWriter::Write(const CatalogueNotification& notification) {
  connection_.Execute(
      "INSERT INTO Notifications (Name, TypesSupported, EmailRecipient, PhoneNumber, PagerString, NetworkName, "
      "DataConnectionString, TableName, SyslogServer, SyslogUDPPort, SyslogPriority) VALUES (" +
      Joined({QuoteSqlText(notification.Name), std::to_string(notification.TypesSupported()),
              QuoteSqlText(notification.EmailRecipient), "NULL", "NULL", QuoteSqlText(notification.NetworkName), "NULL",
              "NULL", QuoteSqlText(notification.SyslogServer), std::to_string(notification.SyslogUdpPort),
              std::to_string(notification.SyslogPriority)}) +
      ")");
}

}  // namespace corvane
