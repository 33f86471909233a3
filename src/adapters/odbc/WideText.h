#pragma once

#include <sqltypes.h>

#include <string>
#include <string_view>
#include <vector>

namespace corvane {

/// A UTF-8 text in the UTF-16 that drivers take, with a final zero. Raises `DataFailure` when it is no UTF-8.
std::vector<SQLWCHAR> ToWide(std::string_view text);

/// The UTF-8 of so many units of UTF-16, up to the first that is malformed.
std::string FromWide(const SQLWCHAR* text, std::size_t length);

}  // namespace corvane
