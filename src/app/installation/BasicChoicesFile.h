#pragma once

#include <istream>
#include <set>
#include <string>

#include "app/installation/Catalogue.h"

namespace corvane {

/// The ready-made event choices of the rapid configuration: a row per line of the form TEXT|EVENT IDS|TYPE MASK.
/// Ticking a row takes the alarms with one of these event IDs; of the Security log those of the types that the mask
/// holds, under the newer OS classes, of the other logs those of exactly these types.
class BasicChoicesFile {
 public:
  /// `source` is what error texts call the file, mostly its name. The catalogue must live as long as this object.
  BasicChoicesFile(std::string source, const Catalogue& catalogue);

  /// Raises an `InstallationError` of the form `source:line: what is wrong` at the first row that breaks the form or
  /// has an event ID for which the catalogue has no alarm.
  void Check(std::istream& text);

 private:
  void CheckRow(const std::string& row);
  void CheckEventId(const std::string& id, int mask) const;
  bool Takes(const CatalogueAlarm& alarm, const std::string& id, int mask) const;
  [[noreturn]] void Fail(const std::string& what) const;

  std::string source_;
  const Catalogue& catalogue_;
  int line_ = 0;
  std::set<std::string> rows_, texts_;
};

}  // namespace corvane
