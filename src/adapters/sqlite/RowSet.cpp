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
  const int count = static_cast<int>(columns_.size());
  for (int i = 0; i < count; ++i) cells_.push_back(CellOf(statement, i));
  if (withRowId_) rowIds_.push_back(sqlite3_column_int64(statement, count));
}

void RowSet::Replace(std::size_t row, sqlite3_stmt* statement) {
  for (std::size_t i = 0; i < columns_.size(); ++i)
    cells_[row * columns_.size() + i] = CellOf(statement, static_cast<int>(i));
}

RowSet::Cell RowSet::CellOf(sqlite3_stmt* statement, int column) {
  switch (sqlite3_column_type(statement, column)) {
    case SQLITE_NULL:
      return {};
    case SQLITE_INTEGER: {
      const bool flag = columns_[static_cast<std::size_t>(column)].Type.Type == FieldType::Kind::Boolean;
      return {static_cast<std::uint64_t>(sqlite3_column_int64(statement, column)), 0,
              flag ? Cell::Kind::Boolean : Cell::Kind::Number};
    }
    case SQLITE_FLOAT:
      return {std::bit_cast<std::uint64_t>(sqlite3_column_double(statement, column)), 0, Cell::Kind::Real};
    default: {
      const void* text = sqlite3_column_text(statement, column);
      const auto length = static_cast<std::uint32_t>(sqlite3_column_bytes(statement, column));
      const std::size_t start = texts_.size();
      if (length != 0) texts_.append(static_cast<const char*>(text), length);
      return {start, length, Cell::Kind::Text};
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
        text->assign(texts_, cell.Bits, cell.Length);
      else
        value = texts_.substr(cell.Bits, cell.Length);
      break;
  }
}

}  // namespace corvane
