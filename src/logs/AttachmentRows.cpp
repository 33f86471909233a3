#include "logs/AttachmentRows.h"

#include "core/SqlText.h"
#include "core/modMain.h"

namespace corvane {

AttachmentRows::AttachmentRows(modMain& main, std::string idName, std::string domain)
    : main_(main), idName_(std::move(idName)), domain_(std::move(domain)) {}

// Names go in as they stand, without doubled apostrophes: what the catalogue takes holds none.
void AttachmentRows::InsertNotification(const std::string& name) {
  Insert("NotificationsForLogs", "NotificationName", "'" + name + "'");
}

void AttachmentRows::InsertBundle(const AttachmentTables& tables, const std::string& id) {
  Insert(tables.Bundles, "AlarmGroupID", id);
}

void AttachmentRows::InsertAlarm(const AttachmentTables& tables, const std::string& id) {
  Insert(tables.Singles, "AlarmID", id);
}

void AttachmentRows::Insert(const char* table, const char* column, const std::string& value) {
  main_.ConfigConnection->Execute(std::string("INSERT INTO ") + table + " ([IDName], [Domain], " + column +
                                  ") VALUES ('" + idName_ + "', '" + domain_ + "', " + value + ")");
}

bool AttachmentRows::AlarmInAttachedBundle(const AttachmentTables& tables, const std::string& alarmId) {
  Connection& connection = *main_.ConfigConnection;
  const auto bundles = main_.Platform.Data.NewRecordset();
  bundles->Open(std::string("SELECT * FROM ") + tables.Bundles + " WHERE IDName=" + QuoteSqlText(idName_), connection,
                CursorType::ForwardOnly, LockType::ReadOnly);
  for (; !bundles->Eof(); bundles->MoveNext()) {
    const auto members = main_.Platform.Data.NewRecordset();
    members->Open("SELECT * FROM AlarmsInGroups WHERE AlarmGroupID=" + ToText(bundles->Field("AlarmGroupID")) +
                      " AND AlarmID=" + alarmId,
                  connection, CursorType::ForwardOnly, LockType::ReadOnly);
    if (!(members->Eof() && members->Bof())) return true;
  }
  return false;
}

std::string AttachmentRows::FindAlarmID(const std::string& name, const std::string& categoryIndex) {
  const auto alarm = main_.ConfigConnection->Execute("SELECT * FROM Alarms WHERE Name = " + QuoteSqlText(name) +
                                                     " AND AlarmCategory = " + QuoteSqlText(categoryIndex));
  return ToText(alarm->Field("AlarmID"));
}

}  // namespace corvane
