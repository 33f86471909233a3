#include "adapters/sqlite/FieldType.h"

#include <sqlite3.h>

#include "adapters/sqlite/StoreErrors.h"
#include "platform/Conversions.h"

namespace corvane {
namespace {

std::string TextWithin(const Value& value, std::size_t limit) {
  std::string text = ToText(value);
  // The engine measures a text up to its first zero byte, which would let the rest past the limit.
  if (text.find('\0') != text.npos) throw StoreError(errors::TypeMismatch, "Type mismatch");
  if (limit != 0 && text.size() > limit && CharacterCount(text) > limit)
    throw StoreError(errors::DataFieldTooSmall, "The field is too small for the value that was to be stored.");
  return text;
}

}  // namespace

FieldType FieldTypeOf(const char* declaration) {
  if (declaration == nullptr) return {};
  if (sqlite3_stricmp(declaration, "INTEGER") == 0) return {FieldType::Kind::Number, 0};
  if (sqlite3_stricmp(declaration, "BOOLEAN") == 0) return {FieldType::Kind::Boolean, 0};
  if (sqlite3_stricmp(declaration, "LONGTEXT") == 0) return {FieldType::Kind::Text, 0};
  if (sqlite3_strnicmp(declaration, "VARCHAR(", 8) == 0)
    return {FieldType::Kind::Text, static_cast<std::size_t>(Val(declaration + 8))};
  return {};
}

Value ConvertForField(const Value& value, const FieldType& type) {
  if (IsNull(value)) return value;
  switch (type.Type) {
    case FieldType::Kind::Number:
      return std::int64_t{ToNumber(value)};
    case FieldType::Kind::Boolean:
      return ToBoolean(value);
    case FieldType::Kind::Text:
      return TextWithin(value, type.Limit);
    case FieldType::Kind::Other:
      break;
  }
  return value;
}

}  // namespace corvane
