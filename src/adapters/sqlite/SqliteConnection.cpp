#include "adapters/sqlite/SqliteConnection.h"

#include <sqlite3.h>

#include "adapters/sqlite/AdaptSql.h"
#include "adapters/sqlite/ConnectionString.h"
#include "adapters/sqlite/SqliteDatabase.h"
#include "adapters/sqlite/SqliteRecordset.h"
#include "adapters/sqlite/SqliteStatement.h"
#include "adapters/sqlite/StoreErrors.h"

namespace corvane {

SqliteConnection::SqliteConnection(PathMap paths) : paths_(std::move(paths)) {}

SqliteConnection::~SqliteConnection() = default;

void SqliteConnection::Open(const std::string& connectionString) {
  if (database_) throw StoreError(errors::DataOpen, "The connection is open already.");
  const ConnectionString parsed = ConnectionString::Parse(connectionString);
  database_ = std::make_shared<SqliteDatabase>(paths_(parsed.DataSource), parsed.NewestFormat, lockWait_);
}

void SqliteConnection::Close() {
  Database();
  database_.reset();
}

ObjectState SqliteConnection::State() const { return database_ ? ObjectState::Open : ObjectState::Closed; }

const std::shared_ptr<SqliteDatabase>& SqliteConnection::Database() const {
  if (!database_) throw StoreError(errors::DataClosed, "The connection is closed.");
  return database_;
}

std::unique_ptr<Recordset> SqliteConnection::Execute(const std::string& sql) {
  SqliteStatement statement(Database()->Engine(), AdaptSql(sql));
  auto result = std::make_unique<SqliteRecordset>();
  if (statement.HasColumns())
    result->Fetch(statement);
  else
    statement.Run();
  return result;
}

// Deferred: the lock is taken by the first change, so that a transaction that only reads holds up nobody.
void SqliteConnection::BeginTrans() { Control("BEGIN DEFERRED", false); }

void SqliteConnection::CommitTrans() { Control("COMMIT", true); }

void SqliteConnection::RollbackTrans() { Control("ROLLBACK", true); }

// A full disk may have ended the transaction before its owner does.
void SqliteConnection::Control(const char* sql, bool inTransaction) {
  sqlite3* engine = Database()->Engine();
  if ((sqlite3_get_autocommit(engine) == 0) != inTransaction)
    throw StoreError(errors::DataFailure, inTransaction ? "No transaction is open." : "A transaction is open already.");
  SqliteStatement(engine, sql).Run();
}

void SqliteConnection::SetLockWait(int milliseconds) {
  lockWait_ = milliseconds;
  if (database_) database_->SetLockWait(milliseconds);
}

}  // namespace corvane
