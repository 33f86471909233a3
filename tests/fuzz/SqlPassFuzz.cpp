#include <sqlite3.h>

#include <cstdint>
#include <cstdlib>
#include <string>

#include "adapters/sqlite/AdaptSql.h"
#include "adapters/sqlite/FindCriterion.h"
#include "adapters/sqlite/SelectStatement.h"
#include "platform/RuntimeError.h"

namespace {

void Require(bool held) {
  if (!held) std::abort();
}

// An empty database with a table, to see what the engine makes of the result.
sqlite3* Engine() {
  static sqlite3* const engine = [] {
    sqlite3* opened = nullptr;
    Require(sqlite3_open(":memory:", &opened) == SQLITE_OK);
    Require(sqlite3_exec(opened, "CREATE TABLE a (b, [Index])", nullptr, nullptr, nullptr) == SQLITE_OK);
    return opened;
  }();
  return engine;
}

// Whatever the engine accepts is one statement, without parameters, and means the same when it is adapted again.
void CheckAdapted(const std::string& sql) {
  Require(corvane::AdaptSql(sql) == sql);
  sqlite3_stmt* statement = nullptr;
  const char* rest = nullptr;
  if (sqlite3_prepare_v2(Engine(), sql.c_str(), static_cast<int>(sql.size()), &statement, &rest) == SQLITE_OK) {
    Require(std::string(rest).find_first_not_of(" \t\r\n\f") == std::string::npos);
    Require(sqlite3_bind_parameter_count(statement) == 0);
  }
  sqlite3_finalize(statement);
}

template <class Work>
void PassSyntaxErrors(Work work) {
  try {
    work();
  } catch (const corvane::RuntimeError& error) {
    Require(error.Number == corvane::errors::DataSyntax);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(data, data + size);
  std::string adapted;
  PassSyntaxErrors([&] { adapted = corvane::AdaptSql(text); });
  CheckAdapted(adapted);
  PassSyntaxErrors([&] { corvane::WithRowId(corvane::SelectStatement(text)); });
  PassSyntaxErrors([&] { corvane::FindCriterion(text).Meets(std::string("1")); });
  return 0;
}
