#pragma once

#include <optional>
#include <string>

#include "core/console/CountsByLog.h"

namespace corvane {

class modMain;

/// How much is attached to each log, read for all logs by one query per table. A table that fails takes its own
/// count away and no other.
class AttachmentCounts {
 public:
  explicit AttachmentCounts(modMain& main);

  /// Single alarms and notifications of a log; 0 when their table could not be read.
  int Alarms(const std::string& idName) const;
  int Notifications(const std::string& idName) const;
  /// Alarms in the bundles attached to a log; nothing when one of their tables could not be read.
  std::optional<int> BundleAlarms(const std::string& idName) const;

 private:
  CountsByLog CountRows(const char* table);
  CountsByLog CountBundles();

  modMain& main_;
  CountsByLog alarms_;
  CountsByLog notifications_;
  std::optional<CountsByLog> bundleAlarms_;
};

}  // namespace corvane
