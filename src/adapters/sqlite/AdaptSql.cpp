#include "adapters/sqlite/AdaptSql.h"

#include <array>
#include <charconv>

#include "adapters/sqlite/SqlScanner.h"
#include "platform/Conversions.h"
#include "platform/DateTime.h"

namespace corvane {
namespace {

using Kind = SqlToken::Kind;

// Reads "n c n c n" off the front of the text.
std::array<int, 3> ReadTriple(std::string_view& text, char separator) {
  std::array<int, 3> numbers{};
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    const auto [end, status] = std::from_chars(text.data(), text.data() + text.size(), numbers[i]);
    if (status != std::errc() || numbers[i] < 0) RaiseSqlSyntax("a date is not understood");
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    if (i == 2) break;
    if (!text.starts_with(separator)) RaiseSqlSyntax("a date is not understood");
    text.remove_prefix(1);
  }
  return numbers;
}

// The date of `#mm/dd/yyyy hh:nn:ss#` or `#mm/dd/yyyy#` as text that sorts by time.
std::string IsoDate(std::string_view date) {
  const std::string inner = Trim(date.substr(1, date.size() - 2));
  std::string_view rest = inner;
  const auto [month, day, year] = ReadTriple(rest, '/');
  std::array<int, 3> clock{};
  if (!rest.empty()) {
    if (rest[0] != ' ') RaiseSqlSyntax("a date is not understood");
    rest.remove_prefix(rest.find_first_not_of(' '));
    clock = ReadTriple(rest, ':');
  }
  const std::chrono::year_month_day valid{std::chrono::year{year}, std::chrono::month{static_cast<unsigned>(month)},
                                          std::chrono::day{static_cast<unsigned>(day)}};
  if (!rest.empty() || month > 12 || day > 31 || !valid.ok() || year < 100 || year > 9999 || clock[0] > 23 ||
      clock[1] > 59 || clock[2] > 59)
    RaiseSqlSyntax("a date is out of range");
  return PadZero(year, 4) + "-" + PadZero(month, 2) + "-" + PadZero(day, 2) + " " + PadZero(clock[0], 2) + ":" +
         PadZero(clock[1], 2) + ":" + PadZero(clock[2], 2);
}

void AppendQuoted(std::string& sql, std::string_view text) {
  sql += '\'';
  for (const char c : text) {
    if (c == '\'') sql += c;
    sql += c;
  }
  sql += '\'';
}

void AppendAdapted(std::string& sql, const SqlToken& token) {
  if (token.Type == Kind::Word && SameText(token.Text, "Index"))
    sql.append("[").append(token.Text).append("]");
  else if (token.Type == Kind::Literal && token.Text[0] == '"')
    AppendQuoted(sql, LiteralText(token.Text));
  else if (token.Type == Kind::Date)
    AppendQuoted(sql, IsoDate(token.Text));
  else
    sql += token.Text;
}

}  // namespace

std::string AdaptSql(std::string_view sql) {
  std::string adapted;
  adapted.reserve(sql.size() + 16);
  SqlScanner scanner(sql);
  bool ended = false;
  for (SqlToken token = scanner.Next(); token.Type != Kind::End; token = scanner.Next()) {
    if (ended && token.Type != Kind::Blank) RaiseSqlSyntax("one statement at a time");
    ended = ended || token.Text == ";";
    AppendAdapted(adapted, token);
  }
  return adapted;
}

}  // namespace corvane
