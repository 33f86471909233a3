#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "alarms/ExchangeLine.h"

namespace corvane {

class modMain;

/// An exchange file as it stood when it was loaded. A file that cannot be read has no lines.
class ImportFile {
 public:
  void Load(modMain& main, const std::string& path);

  /// The lines of alarms by their numbers from 1; one is empty where its number names no line that can be read.
  const std::vector<std::string>& Alarms() const { return alarms_; }
  /// The number of the first alarm whose line begins with the text; 0 for none.
  int FindAlarm(std::string_view text) const;
  /// The first category of an index.
  std::optional<ExchangeLine> FindCategory(const std::string& index) const;
  /// The name of the first bundle that holds the alarm of a number; empty for none.
  std::string FindBundle(int alarm) const;

 private:
  std::vector<std::string> alarms_;
  std::unordered_map<std::string, std::string> categories_;
  std::unordered_map<std::string, std::string> bundles_;
};

}  // namespace corvane
