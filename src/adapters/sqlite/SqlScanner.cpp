#include "adapters/sqlite/SqlScanner.h"

#include "adapters/sqlite/StoreErrors.h"

namespace corvane {
namespace {

using Kind = SqlToken::Kind;

bool IsBlank(char c) { return c == ' ' || (c >= '\t' && c <= '\r' && c != '\v'); }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool StartsWord(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || static_cast<unsigned char>(c) >= 0x80;
}
bool IsWord(char c) { return StartsWord(c) || IsDigit(c) || c == '$'; }

template <class Predicate>
std::size_t LengthOf(std::string_view text, Predicate belongs) {
  std::size_t length = 0;
  while (length < text.size() && belongs(text[length])) ++length;
  return length;
}

// Two tokens in touch that would read as something else once their quotes are translated: 'a'"b" would become one text.
bool AreGlued(Kind before, Kind next) {
  const auto isText = [](Kind kind) { return kind == Kind::Literal || kind == Kind::Date; };
  const auto isSolid = [&](Kind kind) {
    return isText(kind) || kind == Kind::Word || kind == Kind::Number || kind == Kind::Bracketed;
  };
  return (isText(before) && isSolid(next)) || (isText(next) && isSolid(before)) ||
         (before == Kind::Number && next == Kind::Word);
}

void CheckSymbol(std::string_view rest) {
  if (rest.starts_with("--") || rest.starts_with("/*")) RaiseSqlSyntax("comments are not allowed");
  if (std::string_view("?:@$").find(rest[0]) != std::string_view::npos) RaiseSqlSyntax("parameters are not allowed");
  if (rest[0] == '\0' || rest[0] == '`') RaiseSqlSyntax("a character is not allowed");
}

}  // namespace

void RaiseSqlSyntax(const std::string& why) {
  throw StoreError(errors::DataSyntax, "Syntax error in the statement: " + why + ".");
}

SqlToken SqlScanner::Next() {
  const Kind kind = KindOfNext();
  if (AreGlued(before_, kind)) RaiseSqlSyntax("a blank is missing beside a text or number");
  const SqlToken token{kind, rest_.substr(0, LengthOfNext(kind))};
  rest_.remove_prefix(token.Text.size());
  before_ = kind;
  return token;
}

SqlToken SqlScanner::NextVisible() {
  SqlToken token = Next();
  while (token.Type == Kind::Blank) token = Next();
  return token;
}

SqlToken::Kind SqlScanner::KindOfNext() const {
  if (rest_.empty()) return Kind::End;
  const char c = rest_[0];
  if (IsBlank(c)) return Kind::Blank;
  if (IsDigit(c)) return Kind::Number;
  if (StartsWord(c)) return Kind::Word;
  if (c == '\'' || c == '"') return Kind::Literal;
  if (c == '[') return Kind::Bracketed;
  if (c == '#') return Kind::Date;
  CheckSymbol(rest_);
  return Kind::Symbol;
}

std::size_t SqlScanner::LengthOfNext(Kind kind) const {
  switch (kind) {
    case Kind::Blank:
      return LengthOf(rest_, IsBlank);
    case Kind::Word:
      return LengthOf(rest_, IsWord);
    case Kind::Number:
      return NumberLength();
    case Kind::Literal:
      return QuotedLength();
    case Kind::Bracketed:
      return DelimitedLength(']');
    case Kind::Date:
      return DelimitedLength('#');
    case Kind::Symbol:
      return 1;
    case Kind::End:
      break;
  }
  return 0;
}

std::size_t SqlScanner::QuotedLength() const {
  const char quote = rest_[0];
  for (std::size_t i = 1; i < rest_.size(); ++i) {
    if (rest_[i] == '\0') break;
    if (rest_[i] != quote) continue;
    if (i + 1 == rest_.size() || rest_[i + 1] != quote) return i + 1;
    ++i;
  }
  RaiseSqlSyntax("a text has no end");
}

std::size_t SqlScanner::DelimitedLength(char end) const {
  const std::size_t last = rest_.find(end, 1);
  if (last == rest_.npos || rest_.substr(0, last).find('\0') != rest_.npos) RaiseSqlSyntax("a name or date has no end");
  return last + 1;
}

std::size_t SqlScanner::NumberLength() const {
  std::size_t length = LengthOf(rest_, IsDigit);
  if (length < rest_.size() && rest_[length] == '.') length += 1 + LengthOf(rest_.substr(length + 1), IsDigit);
  if (length < rest_.size() && (rest_[length] == 'e' || rest_[length] == 'E')) {
    std::size_t exponent = length + 1;
    if (exponent < rest_.size() && (rest_[exponent] == '+' || rest_[exponent] == '-')) ++exponent;
    const std::size_t digits = LengthOf(rest_.substr(exponent), IsDigit);
    if (digits > 0) length = exponent + digits;
  }
  return length;
}

std::string LiteralText(std::string_view literal) {
  const char quote = literal[0];
  std::string text;
  text.reserve(literal.size());
  for (std::size_t i = 1; i + 1 < literal.size(); ++i) {
    text += literal[i];
    if (literal[i] == quote) ++i;
  }
  return text;
}

}  // namespace corvane
