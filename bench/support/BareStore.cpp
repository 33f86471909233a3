#include "support/BareStore.h"

#include <stdexcept>

namespace corvane::bench {

BareStore::BareStore(const std::filesystem::path& file) {
  sqlite3* engine = nullptr;
  const int code = sqlite3_open_v2(file.c_str(), &engine, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
  engine_.reset(engine);
  if (code != SQLITE_OK) throw std::runtime_error("cannot open " + file.string());
  Run("PRAGMA synchronous = NORMAL");
}

void BareStore::Run(const std::string& sql) {
  if (sqlite3_exec(engine_.get(), sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
    throw std::runtime_error(sql + ": " + sqlite3_errmsg(engine_.get()));
}

std::size_t BareStore::Walk(const std::string& sql) {
  std::size_t rows = 0;
  ForEach(sql, [&rows](sqlite3_stmt*) { ++rows; });
  return rows;
}

void BareStore::ForEach(const std::string& sql, const std::function<void(sqlite3_stmt* row)>& visit) {
  sqlite3_stmt* prepared = nullptr;
  sqlite3_prepare_v2(engine_.get(), sql.c_str(), -1, &prepared, nullptr);
  const std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt*)> statement(prepared, &sqlite3_finalize);
  int code = statement ? sqlite3_step(prepared) : SQLITE_ERROR;
  for (; code == SQLITE_ROW; code = sqlite3_step(prepared)) visit(prepared);
  if (code != SQLITE_DONE) throw std::runtime_error(sql + ": " + sqlite3_errmsg(engine_.get()));
}

std::string TextOf(sqlite3_stmt* row, int column) {
  return {reinterpret_cast<const char*>(sqlite3_column_text(row, column)),
          static_cast<std::size_t>(sqlite3_column_bytes(row, column))};
}

}  // namespace corvane::bench
