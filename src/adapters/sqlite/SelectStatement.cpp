#include "adapters/sqlite/SelectStatement.h"

#include "adapters/sqlite/AdaptSql.h"
#include "adapters/sqlite/SqlScanner.h"
#include "platform/Conversions.h"

namespace corvane {
namespace {

std::string BareName(const std::string& source) {
  std::string name = Trim(source);
  if (name.size() > 2 && name.front() == '[' && name.back() == ']') name = name.substr(1, name.size() - 2);
  if (name.empty() || name.find(']') != name.npos || name.find('\0') != name.npos)
    RaiseSqlSyntax("neither a query nor the name of a table");
  return name;
}

}  // namespace

std::string SelectStatement(const std::string& source) {
  const std::string text = Trim(source);
  const std::size_t end = text.find_first_of(" \t\r\n*[");
  if (end != text.npos && SameText(std::string_view(text).substr(0, end), "SELECT")) return AdaptSql(source);
  return "SELECT * FROM [" + BareName(source) + "]";
}

std::optional<std::string> WithRowId(const std::string& select) {
  SqlScanner scanner(select);
  const SqlToken verb = scanner.NextVisible(), star = scanner.NextVisible(), from = scanner.NextVisible();
  if (!SameText(verb.Text, "SELECT") || star.Text != "*" || !SameText(from.Text, "FROM")) return std::nullopt;
  std::string changed = select;
  changed.insert(static_cast<std::size_t>(star.Text.data() - select.data()) + 1, ", rowid");
  return changed;
}

}  // namespace corvane
