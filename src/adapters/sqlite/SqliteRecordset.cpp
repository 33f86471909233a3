#include "adapters/sqlite/SqliteRecordset.h"

#include <algorithm>
#include <limits>

#include "adapters/sqlite/FindCriterion.h"
#include "adapters/sqlite/RowWriter.h"
#include "adapters/sqlite/SelectStatement.h"
#include "adapters/sqlite/SqliteConnection.h"
#include "adapters/sqlite/SqliteDatabase.h"
#include "adapters/sqlite/SqliteStatement.h"
#include "adapters/sqlite/StoreErrors.h"

namespace corvane {
namespace {

constexpr std::size_t NoRow = std::numeric_limits<std::size_t>::max();

}  // namespace

void SqliteRecordset::Open(const std::string& source, Connection& connection, CursorType, LockType lock) {
  if (open_) throw StoreError(errors::DataOpen, "The recordset is open already.");
  auto* store = dynamic_cast<SqliteConnection*>(&connection);
  if (store == nullptr) throw StoreError(errors::DataFailure, "The connection belongs to another kind of database.");
  const auto& database = store->Database();
  const std::string select = SelectStatement(source);
  if (lock == LockType::Optimistic) {
    const auto extended = WithRowId(select);
    const auto statement = extended ? SqliteStatement::TryPrepare(database->Engine(), *extended) : nullptr;
    if (statement) {
      database_ = database;
      return FetchRows(*statement, true);
    }
  }
  SqliteStatement statement(database->Engine(), select);
  Fetch(statement);
}

void SqliteRecordset::Fetch(SqliteStatement& statement) { FetchRows(statement, false); }

void SqliteRecordset::FetchRows(SqliteStatement& statement, bool withRowId) {
  RowSet rows;
  rows.Describe(statement.Handle(), withRowId);
  while (statement.Step()) rows.Append(statement.Handle());
  rows_ = std::move(rows);
  row_ = 0;
  change_.reset();
  known_.clear();
  cells_.resize(rows_.Columns().size());
  cellRows_.assign(rows_.Columns().size(), NoRow);
  changeable_ = withRowId;
  open_ = true;
}

void SqliteRecordset::Close() {
  RequireOpen();
  *this = SqliteRecordset();
}

bool SqliteRecordset::Eof() const {
  RequireOpen();
  return row_ >= rows_.Rows();
}

bool SqliteRecordset::Bof() const {
  RequireOpen();
  return rows_.Rows() == 0;
}

void SqliteRecordset::MoveNext() {
  RequireRow();
  MoveTo(row_ + 1);
}

void SqliteRecordset::MoveFirst() {
  RequireOpen();
  MoveTo(0);
  RequireRow();
}

void SqliteRecordset::MoveTo(std::size_t row) {
  row_ = row;
  change_.reset();
}

const Value& SqliteRecordset::Field(std::string_view name) const {
  static const Value Null;
  const std::size_t column = ColumnOf(name);
  if (change_ && change_->Fields[column]) return *change_->Fields[column];
  if (change_ && change_->IsNew) return Null;
  RequireRow();
  return Cell(column);
}

const Value& SqliteRecordset::Cell(std::size_t column) const {
  std::size_t& from = cellRows_[column];
  if (from != row_ && (from == NoRow || !rows_.HoldSame(from, row_, column))) rows_.Read(row_, column, cells_[column]);
  from = row_;
  return cells_[column];
}

std::size_t SqliteRecordset::ColumnOf(std::string_view name) const {
  RequireOpen();
  for (const auto& [known, column] : known_)
    if (known == name) return column;
  const auto column = rows_.Find(name);
  if (!column)
    throw StoreError(errors::DataNoItem,
                     "The field '" + std::string(name) + "' is not in the rows, or more than once.");
  known_.emplace_back(name, *column);
  return *column;
}

void SqliteRecordset::Find(const std::string& criterion) {
  RequireRow();
  const FindCriterion wanted(criterion);
  const std::size_t column = ColumnOf(wanted.FieldName());
  change_.reset();
  while (row_ < rows_.Rows() && !wanted.Meets(Cell(column))) ++row_;
}

void SqliteRecordset::AddNew() {
  RequireChangeable();
  change_ = Change{true, std::vector<std::optional<Value>>(rows_.Columns().size())};
}

void SqliteRecordset::SetField(std::string_view name, const Value& value) {
  RequireChangeable();
  const std::size_t column = ColumnOf(name);
  if (!change_) {
    RequireRow();
    change_ = Change{false, std::vector<std::optional<Value>>(rows_.Columns().size())};
  }
  change_->Fields[column] = ConvertForField(value, rows_.Columns()[column].Type);
}

void SqliteRecordset::Update() {
  RequireChangeable();
  if (!change_) return;
  const auto database = database_.lock();
  if (!database) throw StoreError(errors::DataClosed, "The connection is closed.");
  RowWriter::Fields fields;
  for (std::size_t i = 0; i < rows_.Columns().size(); ++i)
    if (const auto& value = change_->Fields[i]) fields.emplace_back(rows_.Columns()[i].Name, *value);
  RowWriter writer(database->Engine(), Table());
  if (change_->IsNew)
    FetchAgain(*database, writer.Insert(fields));
  else {
    writer.Change(rows_.RowId(row_), fields);
    FetchAgain(*database, rows_.RowId(row_));
  }
}

// What was written is read back, for assigned numbers, defaults and the engine's own conversions.
void SqliteRecordset::FetchAgain(SqliteDatabase& database, std::int64_t rowId) {
  SqliteStatement select(database.Engine(), "SELECT *, rowid FROM " + QuoteName(Table()) + " WHERE rowid=?");
  select.Bind(1, rowId);
  const bool isNew = change_->IsNew;
  change_.reset();
  if (!select.Step()) throw StoreError(errors::DataNoRow, "The row has been removed by another program.");
  if (isNew) {
    rows_.Append(select.Handle());
    row_ = rows_.Rows() - 1;
  } else {
    rows_.Replace(row_, select.Handle());
    std::fill(cellRows_.begin(), cellRows_.end(), NoRow);
  }
}

const std::string& SqliteRecordset::Table() const { return rows_.Columns().front().Table; }

void SqliteRecordset::RaiseClosed() { throw StoreError(errors::DataClosed, "The recordset is closed."); }

void SqliteRecordset::RaiseNoRow() { throw StoreError(errors::DataNoRow, "There is no current row."); }

void SqliteRecordset::RequireChangeable() const {
  RequireOpen();
  if (!changeable_) throw StoreError(errors::DataReadOnly, "The rows of this query cannot be changed.");
}

}  // namespace corvane
