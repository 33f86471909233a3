#pragma once

#include <string>
#include <string_view>

namespace corvane {

/// A piece of a statement, as it was written: literals with their quotes, names with their brackets, dates with `#`.
struct SqlToken {
  enum class Kind { End, Blank, Word, Number, Literal, Bracketed, Date, Symbol };

  Kind Type = Kind::End;
  std::string_view Text;
};

/// Cuts a statement of the console's dialect into tokens. Raises `DataSyntax` for what the dialect does not have:
/// comments, parameters, bytes of zero, a literal, name or date without its end, and literals glued to what precedes.
class SqlScanner {
 public:
  explicit SqlScanner(std::string_view sql) : rest_(sql) {}

  /// The next token; `End` when there is none.
  SqlToken Next();
  /// The next token that is no blank.
  SqlToken NextVisible();

 private:
  SqlToken::Kind KindOfNext() const;
  std::size_t LengthOfNext(SqlToken::Kind kind) const;
  std::size_t QuotedLength() const;
  std::size_t DelimitedLength(char end) const;
  std::size_t NumberLength() const;

  std::string_view rest_;
  SqlToken::Kind before_ = SqlToken::Kind::Blank;
};

/// What a literal stands for: its text without the quotes around it, doubled ones taken once.
std::string LiteralText(std::string_view literal);

[[noreturn]] void RaiseSqlSyntax(const std::string& why);

}  // namespace corvane
