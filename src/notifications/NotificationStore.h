#pragma once

#include <optional>
#include <string>
#include <vector>

namespace corvane {

class modMain;

/// A row of `Notifications`: who is told, and by what ways.
struct Notification {
  /// The number of each way in `TypesSupported`.
  enum Way { Email = 1, Pager = 2, Popup = 4, Database = 8, Syslog = 16 };

  /// The ways whose targets are not empty, added up.
  int TypesSupported() const;

  std::string Name;
  std::string EmailRecipient;
  std::string PhoneNumber, PagerString;
  std::string NetworkName;
  std::string DataConnectionString, TableName;
  std::string SyslogServer;
  int SyslogUDPPort = 0, SyslogPriority = 0;
};

/// What may hold a notification back from deletion.
enum class NotificationBond { None, Log, Ping };

/// The notifications in the order of their names, and the names of all templates. As all the following, raises what the
/// database raises.
std::vector<Notification> ReadNotifications(modMain& main);
std::vector<std::string> ReadTemplateNames(modMain& main);
/// Raises `DataNoRow` where there is no notification of that name.
Notification ReadNotification(modMain& main, const std::string& name);
/// The template that a notification is linked to, which need not exist; nothing where there is no link.
std::optional<std::string> FindTemplateOf(modMain& main, const std::string& name);

void InsertNotification(modMain& main, const Notification& notification);
/// A new name is carried into what watched logs, alarms and the test for computers that are offline say of the old one,
/// but not into its link to a template.
void UpdateNotification(modMain& main, const Notification& notification, const std::string& oldName);
/// Puts a link in the place of those that a name has; nothing only takes them away.
void LinkTemplate(modMain& main, const std::string& name, const std::optional<std::string>& templateName);
/// An alarm that names the notification does not hold it.
NotificationBond BondOf(modMain& main, const std::string& name);
/// Deletes a notification and its links.
void DeleteNotification(modMain& main, const std::string& name);

}  // namespace corvane
