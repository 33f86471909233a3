#pragma once

#include <string>
#include <string_view>

#include "platform/RuntimeError.h"

struct sqlite3;

namespace corvane {

/// A failure of the store, under the name by which it signs its errors.
RuntimeError StoreError(int number, const std::string& description);

/// The error that an engine's (extended) result code and message stand for. A failed check named `type_...` is a type
/// mismatch, one named `len_...` a field too small.
RuntimeError ErrorOfCode(int code, std::string_view message);

/// Raises the last error of a connection to the engine.
[[noreturn]] void RaiseLastError(sqlite3* engine);

}  // namespace corvane
