#include "core/SqlText.h"

namespace corvane {

std::string QuoteSqlText(std::string_view text) {
  if (text.empty()) return "NULL";
  std::string quoted = "'";
  for (const char c : text) {
    if (c == '\'') quoted += '\'';
    quoted += c;
  }
  return quoted + "'";
}

std::string NullToEmpty(const Value& field) { return IsNull(field) ? std::string() : ToText(field); }

std::string BoolToText(bool flag) { return flag ? "True" : "False"; }

}  // namespace corvane
