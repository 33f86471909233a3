#include "adapters/sqlite/SqliteProvider.h"

#include "adapters/sqlite/SqliteCatalog.h"
#include "adapters/sqlite/SqliteConnection.h"
#include "adapters/sqlite/SqliteDatabase.h"
#include "adapters/sqlite/SqliteRecordset.h"

namespace corvane {

SqliteProvider::SqliteProvider(PathMap paths) : paths_(std::move(paths)) {}

std::unique_ptr<Connection> SqliteProvider::NewConnection() { return std::make_unique<SqliteConnection>(paths_); }

std::unique_ptr<Recordset> SqliteProvider::NewRecordset() { return std::make_unique<SqliteRecordset>(); }

std::unique_ptr<Catalog> SqliteProvider::NewCatalog() { return std::make_unique<SqliteCatalog>(paths_); }

void SqliteProvider::CreateStore(const std::filesystem::path& file, std::string_view schema, int format) {
  SqliteDatabase::Create(file, schema, format);
}

}  // namespace corvane
