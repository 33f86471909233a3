#include "adapters/sqlite/RowSet.h"

#include <sqlite3.h>

#include <bit>

namespace corvane {
namespace {

bool SameName(std::string_view a, std::string_view b) {
  return a.size() == b.size() && sqlite3_strnicmp(a.data(), b.data(), static_cast<int>(a.size())) == 0;
}

bool IsNamed(const RowSet::Column& column, std::string_view name) {
  if (SameName(column.Name, name)) return true;
  const std::size_t table = column.Table.size();
  return table != 0 && name.size() == table + 1 + column.Name.size() && name[table] == '.' &&
         SameName(column.Table, name.substr(0, table)) && SameName(column.Name, name.substr(table + 1));
}

std::string TextOrEmpty(const char* text) { return text == nullptr ? std::string() : std::string(text); }

}  // namespace

void RowSet::Describe(sqlite3_stmt* statement, bool withRowId) {
  withRowId_ = withRowId;
  const int count = sqlite3_column_count(statement) - (withRowId ? 1 : 0);
  columns_.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i)
    columns_.push_back({TextOrEmpty(sqlite3_column_name(statement, i)),
                        TextOrEmpty(sqlite3_column_table_name(statement, i)),
                        FieldTypeOf(sqlite3_column_decltype(statement, i))});
}

void RowSet::Append(sqlite3_stmt* statement) {
  static const Cell none;
  for (std::size_t i = 0; i < columns_.size(); ++i)
    cells_.push_back(CellOf(statement, i, rowCount_ > 0 ? cells_[cells_.size() - columns_.size()] : none));
  if (withRowId_) rowIds_.push_back(sqlite3_column_int64(statement, static_cast<int>(columns_.size())));
  ++rowCount_;
}

void RowSet::Replace(std::size_t row, sqlite3_stmt* statement) {
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    Cell& cell = cells_[row * columns_.size() + i];
    cell = CellOf(statement, i, cell);
  }
}

// A value is fetched once and then asked for all it holds, which a connection without a mutex allows. A text that
// repeats another cell's, as sorted rows often do, is kept once.
RowSet::Cell RowSet::CellOf(sqlite3_stmt* statement, std::size_t column, const Cell& other) {
  sqlite3_value* value = sqlite3_column_value(statement, static_cast<int>(column));
  switch (sqlite3_value_type(value)) {
    case SQLITE_NULL:
      return {};
    case SQLITE_INTEGER: {
      const bool flag = columns_[column].Type.Type == FieldType::Kind::Boolean;
      return {static_cast<std::uint64_t>(sqlite3_value_int64(value)), 0,
              flag ? Cell::Kind::Boolean : Cell::Kind::Number};
    }
    case SQLITE_FLOAT:
      return {std::bit_cast<std::uint64_t>(sqlite3_value_double(value)), 0, Cell::Kind::Real};
    default: {
      const void* bytes = sqlite3_value_text(value);
      const std::string_view text(static_cast<const char*>(bytes),
                                  static_cast<std::size_t>(sqlite3_value_bytes(value)));
      if (other.Type == Cell::Kind::Text && TextOf(other) == text) return other;
      const std::size_t start = texts_.size();
      texts_.append(text);
      return {start, static_cast<std::uint32_t>(text.size()), Cell::Kind::Text};
    }
  }
}

std::optional<std::size_t> RowSet::Find(std::string_view name) const {
  std::optional<std::size_t> found;
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    if (!IsNamed(columns_[i], name)) continue;
    if (found) return std::nullopt;
    found = i;
  }
  return found;
}

void RowSet::Read(std::size_t row, std::size_t column, Value& value) const {
  const Cell& cell = cells_[row * columns_.size() + column];
  switch (cell.Type) {
    case Cell::Kind::Null:
      value = std::monostate();
      break;
    case Cell::Kind::Number:
      value = static_cast<std::int64_t>(cell.Bits);
      break;
    case Cell::Kind::Real:
      value = std::bit_cast<double>(cell.Bits);
      break;
    case Cell::Kind::Boolean:
      value = cell.Bits != 0;
      break;
    case Cell::Kind::Text:
      if (auto* text = std::get_if<std::string>(&value))
        *text = TextOf(cell);
      else
        value = std::string(TextOf(cell));
      break;
  }
}

}  // namespace corvane
