#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace corvane {

constexpr int OsClassCount = 3;
constexpr int SecurityLog = 3;

/// A category of alarms under one OS class (1 to 3), in one log (1 to 6).
struct CatalogueCategory {
  std::string Name;
  int Os = 0;
  int LogType = 0;

  /// The key under which alarms name their category.
  std::string Index() const { return Name + "_" + std::to_string(Os); }
};

/// An alarm under one OS class. Empty texts, an `EventId` of -1 and thresholds of 0 are no criteria.
struct CatalogueAlarm {
  std::string Name;
  std::string Comment;
  std::string Category;
  int Os = 0;
  /// Sum of 1 Information, 2 Warning, 4 Error, 8 Failure Audit, 16 Success Audit.
  int Types = 0;
  std::string Source;
  int EventId = -1;
  std::string EventDescription;
  int ThresholdCount = 0;
  /// Seconds.
  int ThresholdTimeout = 0;

  std::string CategoryIndex() const { return Category + "_" + std::to_string(Os); }
};

/// A bundle and its members, by their place in `Catalogue::Alarms`.
struct CatalogueBundle {
  std::string Name;
  std::vector<std::size_t> Members;
};

struct CatalogueNotification {
  std::string Name;
  std::string EmailRecipient;
  std::string NetworkName;
  std::string SyslogServer;
  int SyslogUdpPort = 0;
  int SyslogPriority = 0;

  /// Sum of 1 e-mail, 4 network popup, 16 syslog: the ways that have a target.
  int TypesSupported() const {
    return (EmailRecipient.empty() ? 0 : 1) + (NetworkName.empty() ? 0 : 4) + (SyslogServer.empty() ? 0 : 16);
  }
};

/// What a fresh installation's database holds to choose from.
struct Catalogue {
  std::vector<CatalogueCategory> Categories;
  std::vector<CatalogueAlarm> Alarms;
  std::vector<CatalogueBundle> Bundles;
  std::vector<CatalogueNotification> Notifications;

  /// The number of the log in which the alarm's category stands; 0 when there is no such category.
  int LogOf(const CatalogueAlarm& alarm) const {
    for (const CatalogueCategory& category : Categories)
      if (category.Os == alarm.Os && category.Name == alarm.Category) return category.LogType;
    return 0;
  }
};

}  // namespace corvane
