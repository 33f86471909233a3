#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "adapters/sqlite/RowSet.h"
#include "platform/data/Recordset.h"

namespace corvane {

class SqliteDatabase;
class SqliteStatement;

/// The fetched rows of a query. Rows of a single table that were opened with an optimistic lock can be changed; a
/// change that was not written by `Update` is given up when the row is left.
class SqliteRecordset final : public Recordset {
 public:
  void Open(const std::string& source, Connection& connection, CursorType cursor, LockType lock) override;
  void Close() override;
  ObjectState State() const override { return open_ ? ObjectState::Open : ObjectState::Closed; }
  bool Eof() const override;
  bool Bof() const override;
  void MoveNext() override;
  void MoveFirst() override;
  /// The reference holds until the row is left or changed.
  const Value& Field(std::string_view name) const override;
  void Find(const std::string& criterion) override;
  void AddNew() override;
  void SetField(std::string_view name, const Value& value) override;
  void Update() override;

  /// Opens the recordset on what a statement gives, to be read only.
  void Fetch(SqliteStatement& statement);

 private:
  struct Change {
    bool IsNew = false;
    std::vector<std::optional<Value>> Fields;
  };

  void FetchRows(SqliteStatement& statement, bool withRowId);
  [[noreturn]] static void RaiseClosed();
  [[noreturn]] static void RaiseNoRow();
  void RequireOpen() const {
    if (!open_) RaiseClosed();
  }
  void RequireRow() const {
    RequireOpen();
    if (row_ >= rows_.Rows()) RaiseNoRow();
  }
  void RequireChangeable() const;
  std::size_t ColumnOf(std::string_view name) const;
  const Value& Cell(std::size_t column) const;
  void MoveTo(std::size_t row);
  const std::string& Table() const;
  void FetchAgain(SqliteDatabase& database, std::int64_t rowId);

  bool open_ = false;
  bool changeable_ = false;
  std::weak_ptr<SqliteDatabase> database_;
  RowSet rows_;
  std::size_t row_ = 0;
  std::optional<Change> change_;
  // The columns of the names that were asked for, as they were spelled: loops ask for the same few in every row.
  mutable std::vector<std::pair<std::string, std::size_t>> known_;
  // The cells of the current row that were asked for, and the row that each was taken from.
  mutable std::vector<Value> cells_;
  mutable std::vector<std::size_t> cellRows_;
};

}  // namespace corvane
