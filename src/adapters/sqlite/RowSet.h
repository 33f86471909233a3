#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "adapters/sqlite/FieldType.h"
#include "platform/data/Value.h"

struct sqlite3_stmt;

namespace corvane {

/// The columns of a query and the rows that were fetched. Cells take 16 bytes each and share one text buffer, so that
/// opening ten thousand rows costs a few allocations only.
class RowSet {
 public:
  struct Column {
    std::string Name;
    std::string Table;  // empty for an expression
    FieldType Type;
  };

  /// Takes the columns of a statement. With `withRowId` the last one is the hidden row number, kept apart.
  void Describe(sqlite3_stmt* statement, bool withRowId);
  /// Adds the row that the statement stands on.
  void Append(sqlite3_stmt* statement);
  /// Replaces a row by the one that the statement stands on.
  void Replace(std::size_t row, sqlite3_stmt* statement);

  std::size_t Rows() const { return rowCount_; }
  const std::vector<Column>& Columns() const { return columns_; }
  std::int64_t RowId(std::size_t row) const { return rowIds_[row]; }

  /// Finds a column by `Name` or `Table.Name`, without regard to case. Nothing when there is none or more than one.
  std::optional<std::size_t> Find(std::string_view name) const;
  /// True when it costs nothing to see that two rows have the same content in a column.
  bool HoldSame(std::size_t row, std::size_t other, std::size_t column) const {
    return cells_[row * columns_.size() + column] == cells_[other * columns_.size() + column];
  }
  /// Puts the content of a cell into `value`, whose memory is used again where it serves.
  void Read(std::size_t row, std::size_t column, Value& value) const;

 private:
  struct Cell {
    enum class Kind : std::uint32_t { Null, Number, Real, Boolean, Text };

    std::uint64_t Bits = 0;  // the number, or where the text begins
    std::uint32_t Length = 0;
    Kind Type = Kind::Null;
    bool operator==(const Cell&) const = default;
  };

  Cell CellOf(sqlite3_stmt* statement, std::size_t column, const Cell& other);
  std::string_view TextOf(const Cell& cell) const { return {texts_.data() + cell.Bits, cell.Length}; }

  std::vector<Column> columns_;
  std::vector<Cell> cells_;
  std::vector<std::int64_t> rowIds_;
  std::string texts_;
  std::size_t rowCount_ = 0;
  bool withRowId_ = false;
};

}  // namespace corvane
