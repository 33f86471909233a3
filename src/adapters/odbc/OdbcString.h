#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace corvane {

/// The attributes of a connection string `KEY=value;KEY={value};`. In braces a value may hold `;`, and `}}` stands for
/// one `}`. Keys match without regard to case, and the first of several counts, as the standard of ODBC says.
class OdbcString {
 public:
  explicit OdbcString(std::string_view text);

  /// The value of an attribute; empty when there is none.
  std::string Find(std::string_view key) const;
  /// Whether there is a `PWD`, a `Password` or the like.
  bool HasPassword() const;
  /// A message with asterisks for the passwords, and for whatever else stands in it as the value of such an attribute.
  std::string WithoutPassword(std::string message) const;

 private:
  std::vector<std::pair<std::string, std::string>> attributes_;
};

}  // namespace corvane
