#pragma once

#include <vector>

#include "app/installation/Catalogue.h"

namespace corvane {

class Connection;

/// Puts a catalogue into a configuration database whose tables are empty, with the OS classes and logs that it needs.
class CatalogueWriter {
 public:
  explicit CatalogueWriter(Connection& connection) : connection_(connection) {}

  /// Writes all in one transaction. Raises `RuntimeError` with nothing written.
  void Write(const Catalogue& catalogue);

 private:
  void WriteAll(const Catalogue& catalogue);
  void WriteClassesAndLogs();
  void Write(const CatalogueBundle& bundle, const std::vector<CatalogueAlarm>& alarms);
  void Write(const CatalogueNotification& notification);

  Connection& connection_;
};

}  // namespace corvane
