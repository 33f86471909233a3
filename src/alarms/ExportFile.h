#pragma once

#include <string>

#include "alarms/ExchangeSection.h"

namespace corvane::ui {
class TreeView;
}

namespace corvane {

class modMain;

/// Writes chosen alarms and bundles into an exchange file, line by line behind what stands there. Failures of the
/// database or the file are raised; what was written before stays.
class ExportFile {
 public:
  ExportFile(modMain& main, const PrivateProfile& file);

  /// Writes what a chosen tree for an export holds: bundles with their members first, then each single alarm that no
  /// bundle has brought.
  void Write(const ui::TreeView& chosen);

 private:
  std::string IdOfSingle(const std::string& name, const std::string& categoryIndex);
  void WriteMember(const std::string& key);
  int WriteAlarmLine(const std::string& alarmId);
  void WriteCategoryLine(const std::string& index);
  bool AlarmLineMissing(const std::string& alarmId);

  modMain& main_;
  ExchangeSection alarms_;
  ExchangeSection categories_;
  ExchangeSection bundles_;
  ExchangeSection members_;
};

}  // namespace corvane
