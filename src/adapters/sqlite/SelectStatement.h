#pragma once

#include <optional>
#include <string>

namespace corvane {

/// What a recordset runs for its source, in the engine's SQL: an adapted SELECT, or all rows of a table when the source
/// is a bare name. Raises `DataSyntax`.
std::string SelectStatement(const std::string& source);

/// A `SELECT * FROM` with the hidden row number as its last column; nothing for any other statement. The engine refuses
/// the result where rows are not those of one table.
std::optional<std::string> WithRowId(const std::string& select);

}  // namespace corvane
