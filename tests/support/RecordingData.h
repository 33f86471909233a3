#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/RuntimeError.h"
#include "platform/data/Connection.h"

namespace corvane::test {

/// The data layer with a witness: it notes every statement in order and can fail one of them.
class RecordingData : public DataProvider {
 public:
  explicit RecordingData(DataProvider& real) : Real(real) {}

  std::unique_ptr<Connection> NewConnection() override;
  std::unique_ptr<Recordset> NewRecordset() override;
  std::unique_ptr<Catalog> NewCatalog() override { return Real.NewCatalog(); }

  /// Every statement run and every recordset opened since the last `Forget`.
  std::vector<std::string> Statements;
  void Forget() { Statements.clear(); }
  /// Every string that a connection was to be opened with.
  std::vector<std::string> Tried;
  /// How long statements were to wait for a lock, in milliseconds, each time that this was changed.
  std::vector<int> LockWaits;
  /// Those of the statements that change rows.
  std::vector<std::string> Changes() const {
    std::vector<std::string> changes = Statements;
    std::erase_if(changes, [](const std::string& sql) { return sql.starts_with("SELECT"); });
    return changes;
  }

  /// Statements for which this is true fail with `DataLocked`.
  std::function<bool(const std::string& sql)> Fails;
  /// Lets the statement fail that comes after `count` further ones that hold the text.
  void FailAfter(int count, const std::string& holding) {
    Fails = [=](const std::string& sql) mutable { return sql.find(holding) != sql.npos && count-- == 0; };
  }

  /// Notes a statement and raises when it is to fail.
  void Meet(const std::string& sql) {
    Statements.push_back(sql);
    if (Fails && Fails(sql)) throw RuntimeError(errors::DataLocked, "The row is locked");
  }

  DataProvider& Real;
};

}  // namespace corvane::test
