#include <sqlite3.h>

#include "adapters/sqlite/AdaptSql.h"
#include "adapters/sqlite/FindCriterion.h"
#include "adapters/sqlite/SelectStatement.h"
#include "fuzz/Fuzz.h"

// Whatever the engine accepts is one statement, without parameters, and means the same when it is adapted again.
void corvane::fuzz::Try(const std::string& input) {
  // An empty database with a table, to see what the engine makes of the result.
  static sqlite3* const engine = [] {
    sqlite3* opened = nullptr;
    Require(sqlite3_open(":memory:", &opened) == SQLITE_OK);
    Require(sqlite3_exec(opened, "CREATE TABLE a (b, [Index])", nullptr, nullptr, nullptr) == SQLITE_OK);
    return opened;
  }();
  std::string sql;
  RequireErrors({errors::DataSyntax}, [&] { sql = AdaptSql(input); });
  Require(AdaptSql(sql) == sql);
  sqlite3_stmt* statement = nullptr;
  const char* rest = nullptr;
  if (sqlite3_prepare_v2(engine, sql.c_str(), static_cast<int>(sql.size()), &statement, &rest) == SQLITE_OK)
    Require(std::string(rest).find_first_not_of(" \t\r\n\f") == std::string::npos &&
            sqlite3_bind_parameter_count(statement) == 0);
  sqlite3_finalize(statement);

  RequireErrors({errors::DataSyntax}, [&] { WithRowId(SelectStatement(input)); });
  RequireErrors({errors::DataSyntax}, [&] { FindCriterion(input).Meets(std::string("1")); });
}
