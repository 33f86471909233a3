#include "core/console/CountsByLog.h"

#include <algorithm>

namespace corvane {
namespace {

int Folded(char c) { return static_cast<unsigned char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c); }

// Negative, 0 or positive.
int Compare(std::string_view a, std::string_view b) {
  if (a == b) return 0;
  const std::size_t shorter = std::min(a.size(), b.size());
  for (std::size_t i = 0; i < shorter; ++i)
    if (a[i] != b[i] && Folded(a[i]) != Folded(b[i])) return Folded(a[i]) - Folded(b[i]);
  return a.size() == b.size() ? 0 : (a.size() < b.size() ? -1 : 1);
}

}  // namespace

bool CountsByLog::BeginOther(std::string_view idName) {
  if (!entries_.empty() && Compare(entries_.back().IDName, idName) == 0) return false;
  entries_.push_back({std::string(idName), 0});
  return true;
}

int CountsByLog::Find(std::string_view idName) const {
  if (next_ >= entries_.size() || Compare(entries_[next_].IDName, idName) != 0) {
    const auto before = [](const Entry& entry, std::string_view key) { return Compare(entry.IDName, key) < 0; };
    const auto found = std::lower_bound(entries_.begin(), entries_.end(), idName, before);
    next_ = static_cast<std::size_t>(found - entries_.begin());
    if (found == entries_.end() || Compare(found->IDName, idName) != 0) return 0;
  }
  return entries_[next_++].Rows;
}

}  // namespace corvane
