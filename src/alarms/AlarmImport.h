#pragma once

#include <map>
#include <memory>
#include <string>

#include "alarms/ExchangeLine.h"
#include "platform/data/Recordset.h"

namespace corvane {

class ImportFile;
class modMain;

/// Merges alarms of an exchange file into the catalogue, with the categories and bundles that they need. Statements
/// stand for themselves: a failure is raised and leaves what was written before.
class AlarmImport {
 public:
  AlarmImport(modMain& main, const ImportFile& file) : main_(main), file_(file) {}

  /// Imports the alarm of a line. The user is asked before one of the same name and category is overwritten; with No
  /// nothing of it is done.
  void Import(const std::string& text);

 private:
  bool MayOverwrite(const std::string& name);
  void WriteAlarm(const ExchangeLine& line, const std::string& existingId);
  void ImportCategory(const std::string& index);
  void ImportBundleLinks(const ExchangeLine& line);
  void LinkToBundle(const ExchangeLine& line);
  std::string FindOrAddBundle(const std::string& name);
  Recordset& Table(const std::string& name);

  modMain& main_;
  const ImportFile& file_;
  /// Tables that rows were added to. One stays open for all rows: opening it reads it whole.
  std::map<std::string, std::unique_ptr<Recordset>> tables_;
};

}  // namespace corvane
