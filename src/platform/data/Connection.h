#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/data/Recordset.h"

namespace corvane {

enum class CursorLocation { Server = 2, Client = 3 };

/// A connection to a database. Failures are raised as `RuntimeError` with the numbers of the data layer.
class Connection {
 public:
  virtual ~Connection() = default;

  corvane::CursorLocation CursorLocation = corvane::CursorLocation::Server;

  /// Opens by a string such as `Provider=Microsoft.Jet.OLEDB.4.0;Data Source=C:\Corvane\corvane.mdb;`.
  virtual void Open(const std::string& connectionString) = 0;
  virtual void Close() = 0;
  virtual ObjectState State() const = 0;

  /// Runs one statement. A SELECT gives its rows, anything else a closed recordset.
  virtual std::unique_ptr<Recordset> Execute(const std::string& sql) = 0;

  virtual void BeginTrans() = 0;
  virtual void CommitTrans() = 0;
  virtual void RollbackTrans() = 0;

  static constexpr int DefaultLockWait = 500;
  /// How many milliseconds a statement waits for a lock of another process before it fails. Databases that settle this
  /// themselves pass it over.
  virtual void SetLockWait(int /*milliseconds*/) {}
};

enum class ColumnType { Integer = 3, Date = 7, Text = 202, LongText = 203 };

/// A column of a table that is to be made.
struct NewColumn {
  std::string Name;
  ColumnType Type;
  /// The most characters of a text; no meaning for other types.
  int Size = 0;
};

/// Creates file-based databases and their tables.
class Catalog {
 public:
  virtual ~Catalog() = default;
  /// Makes an empty database at the string's `Data Source`. Raises on failure; never replaces a file that is there.
  virtual void Create(const std::string& connectionString) = 0;
  /// Opens the database that the operations below work on. Raises as `Connection::Open` does.
  virtual void SetActiveConnection(const std::string& connectionString) = 0;
  /// Names of the tables of the type "TABLE", in their order: neither views nor what the system itself keeps. Raises
  /// `DataClosed` without an active connection, as does the next one.
  virtual std::vector<std::string> Tables() = 0;
  /// Appends an empty table. Raises `InvalidPropertyValue` for a name that no statement could hold, and what the
  /// database refuses, such as a name that is in use.
  virtual void AppendTable(const std::string& name, const std::vector<NewColumn>& columns) = 0;
};

/// Makes the objects of the data layer.
class DataProvider {
 public:
  virtual ~DataProvider() = default;
  virtual std::unique_ptr<Connection> NewConnection() = 0;
  virtual std::unique_ptr<Recordset> NewRecordset() = 0;
  virtual std::unique_ptr<Catalog> NewCatalog() = 0;
};

}  // namespace corvane
