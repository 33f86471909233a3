#include "alarms/ExchangeSection.h"

#include <algorithm>

#include "core/PrivateProfile.h"
#include "platform/RuntimeError.h"

namespace corvane {
namespace {

template <class Test>
int NumberOfFirst(const std::vector<std::string>& lines, Test test) {
  const auto found = std::ranges::find_if(lines, test);
  return found == lines.end() ? 0 : static_cast<int>(found - lines.begin()) + 1;
}

}  // namespace

ExchangeSection::ExchangeSection(const PrivateProfile& file, const char* name, const char* stem)
    : file_(file), name_(name), stem_(stem) {
  ReadFrom(1);
}

std::string ExchangeSection::KeyOf(std::size_t number) const { return stem_ + std::to_string(number); }

void ExchangeSection::ReadFrom(std::size_t number) {
  lines_.resize(static_cast<std::size_t>(file_.GetSectionSize(name_)));
  for (; number <= lines_.size(); ++number) file_.GetStringValue(name_, KeyOf(number), lines_[number - 1]);
}

// What was written is read back: values that hold "=" count as several lines, and nothing behind the 30000th character
// counts at all, so that the next line there takes the number of this one.
int ExchangeSection::Append(const std::string& line) {
  const std::size_t number = lines_.size() + 1;
  if (!file_.WriteString(name_, KeyOf(number), line))
    throw RuntimeError(errors::PathFileAccess, "Path/File access error: " + file_.FileName);
  ReadFrom(number);
  return static_cast<int>(number);
}

int FindPrefix(const std::vector<std::string>& lines, std::string_view prefix) {
  return NumberOfFirst(lines, [&](const std::string& line) { return line.starts_with(prefix); });
}

int FindLine(const std::vector<std::string>& lines, std::string_view line) {
  return NumberOfFirst(lines, [&](const std::string& other) { return other == line; });
}

namespace exchange {

ExchangeSection Alarms(const PrivateProfile& file) { return {file, "Alarms", "AlarmInfo"}; }
ExchangeSection Categories(const PrivateProfile& file) { return {file, "AlarmCategories", "CategoryInfo"}; }
ExchangeSection Bundles(const PrivateProfile& file) { return {file, "AlarmGroups", "GroupName"}; }
ExchangeSection Members(const PrivateProfile& file) { return {file, "AlarmsInGroups", "GroupingInfo"}; }

}  // namespace exchange
}  // namespace corvane
