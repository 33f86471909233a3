#pragma once

#include <cstddef>

#include "platform/data/Value.h"

namespace corvane {

/// The type that a column was declared with.
struct FieldType {
  enum class Kind { Other, Number, Boolean, Text };

  Kind Type = Kind::Other;
  /// Most characters of a text; 0 is no limit.
  std::size_t Limit = 0;
};

/// Reads a declaration: INTEGER, BOOLEAN, VARCHAR(n), LONGTEXT; null for an expression. Anything else is `Other`.
FieldType FieldTypeOf(const char* declaration);

/// A value as a field of the type keeps it: numbers 32 bits wide, booleans from words and numbers, texts within their
/// limit. Null and fields of another type keep the value. Raises `TypeMismatch`, `Overflow` or `DataFieldTooSmall`.
Value ConvertForField(const Value& value, const FieldType& type);

}  // namespace corvane
