#include "adapters/lab/LabFile.h"

#include <algorithm>

#include "platform/Conversions.h"
#include "platform/RuntimeError.h"

namespace corvane {
namespace {

std::vector<std::string> SplitLines(const std::string& text) {
  std::vector<std::string> lines;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find('\n', at), text.size());
    lines.push_back(text.substr(at, end - at));
    at = end + 1;
  }
  return lines;
}

// Kind and name of a section with one blank between them, however many a hand has put there.
std::string SectionName(const std::string& text) {
  const std::size_t blank = std::min(text.find(' '), text.size());
  return Trim(text.substr(0, blank) + " " + Trim(text.substr(blank)));
}

template <class Items>
auto FindNamed(Items& items, std::string Items::value_type::*name, const std::string& wanted) {
  return std::find_if(items.begin(), items.end(), [&](const auto& item) { return SameText(item.*name, wanted); });
}

}  // namespace

LabFile::LabFile(const std::string& text) : lines_(SplitLines(text)) { Index(); }

void LabFile::RaiseAt(std::size_t line, const std::string& what) {
  throw RuntimeError(errors::InvalidPropertyValue, "Line " + std::to_string(line + 1) + " of the lab file: " + what);
}

void LabFile::Index() {
  sections_.clear();
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    const std::string line = Trim(lines_[i]);
    if (line.empty() || line.front() == ';') continue;
    if (line.front() == '[' && line.back() == ']') {
      sections_.push_back({SectionName(Trim(line.substr(1, line.size() - 2))), i, {}});
      continue;
    }
    const std::size_t equals = line.find('=');
    if (equals == line.npos || sections_.empty()) RaiseAt(i, "neither a section nor a value");
    sections_.back().Entries.push_back({Trim(line.substr(0, equals)), Trim(line.substr(equals + 1)), i});
  }
}

void LabFile::Set(const std::string& section, const std::string& key, const std::string& value) {
  const auto owner = FindNamed(sections_, &Section::Name, section);
  if (owner == sections_.end())
    throw RuntimeError(errors::ElementNotFound, "The lab file has no section [" + section + "].");
  const auto entry = FindNamed(owner->Entries, &Entry::Key, key);
  if (entry != owner->Entries.end()) {
    lines_[entry->Line] = entry->Key + " = " + value;
  } else {
    const std::size_t last = owner->Entries.empty() ? owner->Line : owner->Entries.back().Line;
    lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(last) + 1, key + " = " + value);
  }
  Index();
}

std::string LabFile::Text() const {
  std::string text;
  for (const std::string& line : lines_) text += line + '\n';
  return text;
}

}  // namespace corvane
