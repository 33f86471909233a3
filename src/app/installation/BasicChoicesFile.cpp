#include "app/installation/BasicChoicesFile.h"

#include <algorithm>
#include <utility>

#include "app/installation/InstallationError.h"
#include "app/installation/WholeNumber.h"
#include "platform/Conversions.h"
#include "platform/SplitText.h"

namespace corvane {
namespace {

constexpr int Warning = 2, Error = 4, AllTypes = 31, HighestEventId = 65535;

}  // namespace

BasicChoicesFile::BasicChoicesFile(std::string source, const Catalogue& catalogue)
    : source_(std::move(source)), catalogue_(catalogue) {}

void BasicChoicesFile::Check(std::istream& text) {
  for (std::string row; std::getline(text, row);) {
    ++line_;
    CheckRow(row);
  }
  for (const char* row : {"All Warnings|-1|2", "All Errors|-1|4"})
    if (!rows_.contains(row)) Fail(std::string("the row '") + row + "' is missing");
}

void BasicChoicesFile::CheckRow(const std::string& row) {
  rows_.insert(row);
  const auto fields = SplitText(row, '|');
  if (fields.size() != 3) Fail("the row has " + std::to_string(fields.size()) + " fields where 3 belong");
  // A configuration remembers its rows by their texts, which its file gives back without blanks at the ends.
  if (fields[0].empty() || Trim(fields[0]) != fields[0]) Fail("'" + fields[0] + "' is no text of a row");
  if (!texts_.insert(UpperCase(fields[0])).second) Fail("'" + fields[0] + "' is used for the second time");
  const auto mask = WholeNumber(fields[2], 1, AllTypes);
  if (!mask) Fail("'" + fields[2] + "' is no number from 1 to " + std::to_string(AllTypes));
  std::set<std::string> seen;
  for (const std::string& id : SplitText(fields[1], ',')) {
    if (!seen.insert(id).second) Fail("event ID " + id + " stands twice");
    CheckEventId(id, *mask);
  }
}

void BasicChoicesFile::CheckEventId(const std::string& id, int mask) const {
  if (!WholeNumber(id, -1, HighestEventId)) Fail("'" + id + "' is no event ID");
  const auto& alarms = catalogue_.Alarms;
  if (std::none_of(alarms.begin(), alarms.end(), [&](const auto& alarm) { return Takes(alarm, id, mask); }))
    Fail("event ID " + id + " takes no alarm");
}

bool BasicChoicesFile::Takes(const CatalogueAlarm& alarm, const std::string& id, int mask) const {
  if (std::to_string(alarm.EventId) != id) return false;
  if (catalogue_.LogOf(alarm) == SecurityLog) return alarm.Os > 1 && (mask & alarm.Types) == alarm.Types;
  if (alarm.Types != mask) return false;
  const bool isAny = id == "-1";
  if (isAny && mask == Warning) return alarm.Name == "All Warnings";
  return !isAny || mask != Error || alarm.Name == "All Errors";
}

void BasicChoicesFile::Fail(const std::string& what) const {
  throw InstallationError(source_ + ":" + std::to_string(line_) + ": " + what);
}

}  // namespace corvane
