#include "adapters/sqlite/SqliteCatalog.h"

#include "adapters/sqlite/ConnectionString.h"
#include "adapters/sqlite/SqliteDatabase.h"

namespace corvane {

void SqliteCatalog::Create(const std::string& connectionString) {
  const ConnectionString parsed = ConnectionString::Parse(connectionString);
  SqliteDatabase::Create(paths_(parsed.DataSource), "", parsed.NewestFormat);
}

}  // namespace corvane
