#pragma once

#include <string>
#include <string_view>

#include "platform/data/Value.h"

namespace corvane {

class Connection;

enum class CursorType { ForwardOnly = 0, Keyset = 1, Dynamic = 2 };
enum class LockType { ReadOnly = 1, Optimistic = 3 };
enum class ObjectState { Closed = 0, Open = 1 };

/// Rows of a query, read whole when opened (client-side cursor), with a current row.
class Recordset {
 public:
  virtual ~Recordset() = default;

  /// Runs a SELECT, or takes all rows of a table when `source` is a bare table name. Raises on failure, and
  /// `DataOpen` when the recordset is open already.
  virtual void Open(const std::string& source, Connection& connection, CursorType cursor, LockType lock) = 0;
  virtual void Close() = 0;
  virtual ObjectState State() const = 0;

  /// Behind the last and before the first row; both are true for an empty result.
  virtual bool Eof() const = 0;
  virtual bool Bof() const = 0;
  /// Raises `DataNoRow` at the end.
  virtual void MoveNext() = 0;
  virtual void MoveFirst() = 0;

  /// A field of the current row. Names match without regard to case; a name that stands in two joined tables is reached
  /// as `Table.Field`. Raises `DataNoItem` or `DataNoRow`.
  virtual const Value& Field(std::string_view name) const = 0;

  /// Goes on from the current row to the first that meets a criterion of the form `Name = 'text'` or `Name = number`;
  /// to the end when none does.
  virtual void Find(const std::string& criterion) = 0;

  /// Begins a new row; fields that are not set stay Null or take the table's default.
  virtual void AddNew() = 0;
  /// Changes a field of the current or new row. The value is converted to the column's type here: `TypeMismatch`,
  /// `Overflow`, `DataFieldTooSmall`.
  virtual void SetField(std::string_view name, const Value& value) = 0;
  /// Writes the changed or new row. The numbers that the database assigned can be read afterwards.
  virtual void Update() = 0;
};

}  // namespace corvane
