#include "adapters/sqlite/FindCriterion.h"

#include <sqlite3.h>

#include "adapters/sqlite/SqlScanner.h"
#include "platform/Conversions.h"

namespace corvane {
namespace {

using Kind = SqlToken::Kind;

std::string NamePart(const SqlToken& token) {
  if (token.Type == Kind::Bracketed) return std::string(token.Text.substr(1, token.Text.size() - 2));
  if (token.Type == Kind::Word) return std::string(token.Text);
  RaiseSqlSyntax("a criterion begins with a field's name");
}

Value WantedValue(SqlScanner& scanner) {
  SqlToken token = scanner.NextVisible();
  if (token.Type == Kind::Literal) return LiteralText(token.Text);
  const bool negative = token.Text == "-";
  if (negative) token = scanner.NextVisible();
  if (token.Type != Kind::Number) RaiseSqlSyntax("a criterion ends with a text or a number");
  const double number = ParseNumber(token.Text).value_or(0);
  return negative ? -number : number;
}

std::optional<double> NumberOf(const Value& value) {
  if (const auto* number = std::get_if<std::int64_t>(&value)) return static_cast<double>(*number);
  if (const auto* real = std::get_if<double>(&value)) return *real;
  if (const auto* text = std::get_if<std::string>(&value)) return ParseNumber(*text);
  return std::nullopt;
}

}  // namespace

FindCriterion::FindCriterion(std::string_view text) {
  SqlScanner scanner(text);
  fieldName_ = NamePart(scanner.NextVisible());
  SqlToken sign = scanner.NextVisible();
  if (sign.Text == ".") {
    fieldName_ += "." + NamePart(scanner.NextVisible());
    sign = scanner.NextVisible();
  }
  if (sign.Text != "=") RaiseSqlSyntax("a criterion compares with =");
  wanted_ = WantedValue(scanner);
  if (scanner.NextVisible().Type != Kind::End) RaiseSqlSyntax("a criterion has one comparison");
}

bool FindCriterion::Meets(const Value& value) const {
  const auto* wanted = std::get_if<std::string>(&wanted_);
  const auto* text = std::get_if<std::string>(&value);
  if (wanted != nullptr && text != nullptr) return sqlite3_stricmp(wanted->c_str(), text->c_str()) == 0;
  const auto number = NumberOf(value);
  return number && number == NumberOf(wanted_);
}

}  // namespace corvane
