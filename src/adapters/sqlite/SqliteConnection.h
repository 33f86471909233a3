#pragma once

#include <memory>
#include <string>

#include "platform/PathMap.h"
#include "platform/data/Connection.h"

namespace corvane {

class SqliteDatabase;

/// A connection to a file of the store. All results are read whole, whatever `CursorLocation` says, so that no reading
/// ever keeps a lock. A transaction that is open when the connection closes is rolled back.
class SqliteConnection final : public Connection {
 public:
  explicit SqliteConnection(PathMap paths);
  ~SqliteConnection() override;

  void Open(const std::string& connectionString) override;
  void Close() override;
  ObjectState State() const override;
  std::unique_ptr<Recordset> Execute(const std::string& sql) override;
  void BeginTrans() override;
  void CommitTrans() override;
  void RollbackTrans() override;
  void SetLockWait(int milliseconds) override;

  /// The open file; its owner is this connection. Raises `DataClosed`.
  const std::shared_ptr<SqliteDatabase>& Database() const;

 private:
  void Control(const char* sql, bool inTransaction);

  PathMap paths_;
  int lockWait_ = DefaultLockWait;
  std::shared_ptr<SqliteDatabase> database_;
};

}  // namespace corvane
