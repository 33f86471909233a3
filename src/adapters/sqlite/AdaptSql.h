#pragma once

#include <string>
#include <string_view>

namespace corvane {

/// Adapts one statement of the console's dialect to the engine's, in one pass: a bare `Index` becomes `[Index]`, also
/// behind a dot; `"text"` becomes `'text'`; `#mm/dd/yyyy hh:nn:ss#` becomes ISO 8601 text. All else stays byte for
/// byte. Raises `DataSyntax` for comments, parameters, blobs, glued or unended literals, zero bytes, wrong dates, and
/// for anything behind a final `;`.
std::string AdaptSql(std::string_view sql);

}  // namespace corvane
