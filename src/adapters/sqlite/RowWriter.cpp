#include "adapters/sqlite/RowWriter.h"

#include <sqlite3.h>

#include "adapters/sqlite/SqliteStatement.h"

namespace corvane {
namespace {

void BindFields(SqliteStatement& statement, const RowWriter::Fields& fields) {
  int parameter = 0;
  for (const auto& [name, value] : fields) statement.Bind(++parameter, value);
}

}  // namespace

std::string QuoteName(const std::string& name) {
  std::string quoted = "\"";
  for (const char c : name) {
    if (c == '"') quoted += c;
    quoted += c;
  }
  return quoted + "\"";
}

RowWriter::RowWriter(sqlite3* engine, const std::string& table) : engine_(engine), table_(QuoteName(table)) {}

std::int64_t RowWriter::Insert(const Fields& fields) {
  std::string names, places;
  for (const auto& [name, value] : fields) {
    names += (names.empty() ? "" : ",") + QuoteName(name);
    places += places.empty() ? "?" : ",?";
  }
  SqliteStatement insert(engine_, "INSERT INTO " + table_ +
                                      (fields.empty() ? " DEFAULT VALUES" : "(" + names + ") VALUES (" + places + ")"));
  BindFields(insert, fields);
  insert.Run();
  return sqlite3_last_insert_rowid(engine_);
}

void RowWriter::Change(std::int64_t rowId, const Fields& fields) {
  std::string changes;
  for (const auto& [name, value] : fields) changes += (changes.empty() ? "" : ",") + QuoteName(name) + "=?";
  SqliteStatement update(engine_, "UPDATE " + table_ + " SET " + changes + " WHERE rowid=?");
  BindFields(update, fields);
  update.Bind(static_cast<int>(fields.size()) + 1, rowId);
  update.Run();
}

}  // namespace corvane
