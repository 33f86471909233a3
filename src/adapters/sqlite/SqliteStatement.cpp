#include "adapters/sqlite/SqliteStatement.h"

#include <sqlite3.h>

#include "adapters/sqlite/SqlScanner.h"
#include "adapters/sqlite/StoreErrors.h"

namespace corvane {

void SqliteStatement::Finalizer::operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }

SqliteStatement::SqliteStatement(sqlite3* engine, std::string_view sql) : engine_(engine) {
  if (Prepare(sql) != SQLITE_OK) RaiseLastError(engine_);
  if (!handle_) RaiseSqlSyntax("the statement is empty");
}

std::unique_ptr<SqliteStatement> SqliteStatement::TryPrepare(sqlite3* engine, std::string_view sql) {
  std::unique_ptr<SqliteStatement> statement(new SqliteStatement(engine));
  const int code = statement->Prepare(sql);
  if (code == SQLITE_OK && statement->handle_) return statement;
  if ((code & 0xFF) == SQLITE_ERROR) return nullptr;
  RaiseLastError(engine);
}

int SqliteStatement::Prepare(std::string_view sql) {
  sqlite3_stmt* statement = nullptr;
  const int code = sqlite3_prepare_v2(engine_, sql.data(), static_cast<int>(sql.size()), &statement, nullptr);
  handle_.reset(statement);
  return code;
}

void SqliteStatement::Bind(int parameter, const Value& value) {
  int code = SQLITE_OK;
  if (IsNull(value))
    code = sqlite3_bind_null(Handle(), parameter);
  else if (const auto* number = std::get_if<std::int64_t>(&value))
    code = sqlite3_bind_int64(Handle(), parameter, *number);
  else if (const auto* real = std::get_if<double>(&value))
    code = sqlite3_bind_double(Handle(), parameter, *real);
  else if (const auto* flag = std::get_if<bool>(&value))
    code = sqlite3_bind_int64(Handle(), parameter, *flag ? 1 : 0);
  else if (const auto* text = std::get_if<std::string>(&value))
    code = sqlite3_bind_text64(Handle(), parameter, text->data(), text->size(), SQLITE_TRANSIENT, SQLITE_UTF8);
  if (code != SQLITE_OK) RaiseLastError(engine_);
}

bool SqliteStatement::Step() {
  const int code = sqlite3_step(Handle());
  if (code == SQLITE_ROW) return true;
  if (code != SQLITE_DONE) RaiseLastError(engine_);
  return false;
}

void SqliteStatement::Run() {
  while (Step()) {
  }
}

bool SqliteStatement::HasColumns() const { return sqlite3_column_count(Handle()) > 0; }

}  // namespace corvane
