#pragma once

#include <memory>
#include <string_view>

#include "platform/data/Value.h"

struct sqlite3;
struct sqlite3_stmt;

namespace corvane {

/// One prepared statement of the engine, released by its destructor. SQL comes here in the engine's own dialect.
class SqliteStatement {
 public:
  /// Raises what the engine refuses.
  SqliteStatement(sqlite3* engine, std::string_view sql);

  /// Nothing when the engine does not understand the statement; raises for every other failure, such as a lock.
  static std::unique_ptr<SqliteStatement> TryPrepare(sqlite3* engine, std::string_view sql);

  /// Gives a parameter its value; they count from 1.
  void Bind(int parameter, const Value& value);
  /// Runs up to the next row. False when there is none left.
  bool Step();
  /// Runs to the end, whatever rows come.
  void Run();

  bool HasColumns() const;
  sqlite3_stmt* Handle() const { return handle_.get(); }

 private:
  struct Finalizer {
    void operator()(sqlite3_stmt* statement) const;
  };

  explicit SqliteStatement(sqlite3* engine) : engine_(engine) {}
  int Prepare(std::string_view sql);

  sqlite3* engine_;
  std::unique_ptr<sqlite3_stmt, Finalizer> handle_;
};

}  // namespace corvane
