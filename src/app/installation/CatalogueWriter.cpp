#include "app/installation/CatalogueWriter.h"

#include "app/installation/CatalogueStatements.h"
#include "core/LogTypes.h"
#include "core/PassOver.h"
#include "core/SqlText.h"
#include "platform/RuntimeError.h"
#include "platform/data/Connection.h"

namespace corvane {

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
  for (const auto& category : catalogue.Categories) connection_.Execute(InsertCategory(category));
  for (const auto& alarm : catalogue.Alarms) connection_.Execute(InsertAlarm(alarm));
  for (const auto& bundle : catalogue.Bundles) Write(bundle, catalogue.Alarms);
  for (const auto& notification : catalogue.Notifications) Write(notification);
}

void CatalogueWriter::WriteClassesAndLogs() {
  for (int os = 1; os <= OsClassCount; ++os) connection_.Execute(InsertOsClass(os));
  for (std::size_t i = 0; i < LogTypeNames.size(); ++i)
    connection_.Execute("INSERT INTO LogTypes ([Index], [Name]) VALUES (" + std::to_string(i + 1) + ", " +
                        QuoteSqlText(LogTypeNames[i]) + ")");
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
      JoinValues({QuoteSqlText(notification.Name), std::to_string(notification.TypesSupported()),
                  QuoteSqlText(notification.EmailRecipient), "NULL", "NULL", QuoteSqlText(notification.NetworkName),
                  "NULL", "NULL", QuoteSqlText(notification.SyslogServer), std::to_string(notification.SyslogUdpPort),
                  std::to_string(notification.SyslogPriority)}) +
      ")");
}

}  // namespace corvane
