#include "notifications/NotificationStore.h"

#include "core/SqlText.h"
#include "core/modMain.h"
#include "platform/Conversions.h"

namespace corvane {
namespace {

constexpr const char* PingSetting = "PingNotification";

std::unique_ptr<Recordset> Run(modMain& main, const std::string& sql) { return main.ConfigConnection->Execute(sql); }

bool IsEmpty(const Recordset& rows) { return rows.Eof() && rows.Bof(); }

int NumberOf(const Value& field) { return IsNull(field) ? 0 : ToNumber(field); }

Notification NotificationOf(const Recordset& row) {
  const auto text = [&](const char* column) { return NullToEmpty(row.Field(column)); };
  return {.Name = text("Name"),
          .EmailRecipient = text("EmailRecipient"),
          .PhoneNumber = text("PhoneNumber"),
          .PagerString = text("PagerString"),
          .NetworkName = text("NetworkName"),
          .DataConnectionString = text("DataConnectionString"),
          .TableName = text("TableName"),
          .SyslogServer = text("SyslogServer"),
          .SyslogUDPPort = NumberOf(row.Field("SyslogUDPPort")),
          .SyslogPriority = NumberOf(row.Field("SyslogPriority"))};
}

bool IsPingNotification(modMain& main, const std::string& name) {
  return SameText(Trim(main.Setting(PingSetting)), Trim(name));
}

// A change of case alone is a rename: the names stand in other places as they were typed.
void CarryName(modMain& main, const std::string& oldName, const std::string& name) {
  const std::string change =
      " SET NotificationName = " + QuoteSqlText(name) + " WHERE NotificationName = " + QuoteSqlText(oldName);
  for (const char* table : {"NotificationsForLogs", "Alarms"}) Run(main, std::string("UPDATE ") + table + change);
  if (IsPingNotification(main, oldName)) main.SaveSetting(PingSetting, name);
}

}  // namespace

int Notification::TypesSupported() const {
  int types = 0;
  const auto add = [&](const std::string& target, Way way) { types |= target.empty() ? 0 : way; };
  add(EmailRecipient, Email);
  add(PhoneNumber, Pager);
  add(NetworkName, Popup);
  add(DataConnectionString, Database);
  add(SyslogServer, Syslog);
  return types;
}

std::vector<Notification> ReadNotifications(modMain& main) {
  std::vector<Notification> notifications;
  const auto rows = Run(main, "SELECT * FROM Notifications ORDER BY Name ASC");
  for (; !rows->Eof(); rows->MoveNext()) notifications.push_back(NotificationOf(*rows));
  return notifications;
}

std::vector<std::string> ReadTemplateNames(modMain& main) {
  std::vector<std::string> names;
  const auto rows = Run(main, "SELECT * FROM CustomNotifications ORDER BY Name ASC");
  for (; !rows->Eof(); rows->MoveNext()) names.push_back(NullToEmpty(rows->Field("Name")));
  return names;
}

Notification ReadNotification(modMain& main, const std::string& name) {
  return NotificationOf(*Run(main, "SELECT * FROM Notifications WHERE Name = '" + name + "'"));
}

std::optional<std::string> FindTemplateOf(modMain& main, const std::string& name) {
  const auto row = Run(main, "SELECT * FROM CustomNotsForNots WHERE NotificationName = '" + name + "'");
  return IsEmpty(*row) ? std::nullopt : std::optional(NullToEmpty(row->Field("CustomNotificationName")));
}

void InsertNotification(modMain& main, const Notification& of) {
  std::string values;
  for (const std::string& value :
       {QuoteSqlText(of.Name), std::to_string(of.TypesSupported()), QuoteSqlText(of.EmailRecipient),
        QuoteSqlText(of.PhoneNumber), QuoteSqlText(of.PagerString), QuoteSqlText(of.NetworkName),
        QuoteSqlText(of.DataConnectionString), QuoteSqlText(of.TableName), QuoteSqlText(of.SyslogServer),
        std::to_string(of.SyslogUDPPort), std::to_string(of.SyslogPriority)})
    values += (values.empty() ? "" : ", ") + value;
  Run(main,
      "INSERT INTO Notifications (Name, TypesSupported, EmailRecipient, PhoneNumber, PagerString, NetworkName, "
      "DataConnectionString, TableName, SyslogServer, SyslogUDPPort, SyslogPriority) VALUES (" +
          values + ")");
}

void UpdateNotification(modMain& main, const Notification& of, const std::string& oldName) {
  Run(main, "UPDATE Notifications Set Name = " + QuoteSqlText(of.Name) + ", EMailRecipient = " +
                QuoteSqlText(of.EmailRecipient) + ", PhoneNumber = " + QuoteSqlText(of.PhoneNumber) +
                ", TypesSupported = " + std::to_string(of.TypesSupported()) +
                ", PagerString = " + QuoteSqlText(of.PagerString) + ", NetworkName = " + QuoteSqlText(of.NetworkName) +
                ", DataConnectionString = " + QuoteSqlText(of.DataConnectionString) +
                ", TableName = " + QuoteSqlText(of.TableName) + ", SyslogServer = " + QuoteSqlText(of.SyslogServer) +
                ", SyslogUDPPort = " + std::to_string(of.SyslogUDPPort) +
                ", SyslogPriority = " + std::to_string(of.SyslogPriority) + " WHERE Name = " + QuoteSqlText(oldName));
  if (Trim(of.Name) != Trim(oldName)) CarryName(main, oldName, of.Name);
}

// Links of a name that was given up stay behind.
void LinkTemplate(modMain& main, const std::string& name, const std::optional<std::string>& templateName) {
  Run(main, "DELETE FROM CustomNotsForNots WHERE NotificationName = " + QuoteSqlText(name));
  if (templateName)
    Run(main, "INSERT INTO CustomNotsForNots VALUES (" + QuoteSqlText(name) + ", " + QuoteSqlText(*templateName) + ")");
}

NotificationBond BondOf(modMain& main, const std::string& name) {
  if (!IsEmpty(*Run(main, "SELECT * FROM NotificationsForLogs WHERE NotificationName = " + QuoteSqlText(name))))
    return NotificationBond::Log;
  return IsPingNotification(main, name) ? NotificationBond::Ping : NotificationBond::None;
}

void DeleteNotification(modMain& main, const std::string& name) {
  Run(main, "DELETE FROM Notifications WHERE Name = " + QuoteSqlText(name));
  Run(main, "DELETE FROM CustomNotsForNots WHERE NotificationName = " + QuoteSqlText(name));
}

}  // namespace corvane
