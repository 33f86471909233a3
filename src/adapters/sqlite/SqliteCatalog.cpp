#include "adapters/sqlite/SqliteCatalog.h"

#include <sqlite3.h>

#include "adapters/sqlite/ConnectionString.h"
#include "adapters/sqlite/SqliteDatabase.h"
#include "adapters/sqlite/SqliteStatement.h"
#include "adapters/sqlite/StoreErrors.h"
#include "platform/Conversions.h"

namespace corvane {
namespace {

constexpr std::size_t LongestName = 64;
// None of these can stand in a name that statements write in brackets or join to others by a dot.
constexpr const char* RefusedInNames = ".!`[]\"";

void CheckName(const std::string& name) {
  if (name.empty() || name.front() == ' ' || CharacterCount(name) > LongestName ||
      name.find_first_of(RefusedInNames) != name.npos || name.find('\0') != name.npos)
    throw StoreError(errors::InvalidPropertyValue, "'" + name + "' is not a valid name of a table.");
}

// The names of the checks are what `StoreErrors` tells their failures by, as in the configuration database.
std::string DefinitionOf(const NewColumn& column) {
  const std::string& name = column.Name;
  const std::string size = std::to_string(column.Size);
  switch (column.Type) {
    case ColumnType::Integer:
      return name + " INTEGER CONSTRAINT type_" + name + " CHECK (typeof(" + name + ") IN ('integer', 'null') AND " +
             name + " BETWEEN -2147483648 AND 2147483647)";
    case ColumnType::Date:
      return name + " DATETIME CONSTRAINT type_" + name + " CHECK (typeof(" + name + ") = 'null' OR (typeof(" + name +
             ") = 'text' AND datetime(" + name + ") IS NOT NULL))";
    case ColumnType::Text:
      return name + " VARCHAR(" + size + ") COLLATE NOCASE CONSTRAINT len_" + name + " CHECK (length(" + name +
             ") <= " + size + ")";
    case ColumnType::LongText:
      break;
  }
  return name + " LONGTEXT COLLATE NOCASE";
}

}  // namespace

SqliteCatalog::SqliteCatalog(PathMap paths) : paths_(std::move(paths)) {}

SqliteCatalog::~SqliteCatalog() = default;

void SqliteCatalog::Create(const std::string& connectionString) {
  const ConnectionString parsed = ConnectionString::Parse(connectionString);
  SqliteDatabase::Create(paths_(parsed.DataSource), "", parsed.NewestFormat);
}

void SqliteCatalog::SetActiveConnection(const std::string& connectionString) {
  const ConnectionString parsed = ConnectionString::Parse(connectionString);
  active_ =
      std::make_unique<SqliteDatabase>(paths_(parsed.DataSource), parsed.NewestFormat, Connection::DefaultLockWait);
}

SqliteDatabase& SqliteCatalog::Active() const {
  if (!active_) throw StoreError(errors::DataClosed, "The catalog has no connection.");
  return *active_;
}

std::vector<std::string> SqliteCatalog::Tables() {
  SqliteStatement rows(Active().Engine(),
                       "SELECT name FROM sqlite_schema WHERE type = 'table' AND name NOT LIKE 'sqlite!_%' ESCAPE '!' "
                       "ORDER BY name COLLATE NOCASE");
  std::vector<std::string> names;
  while (rows.Step()) names.emplace_back(reinterpret_cast<const char*>(sqlite3_column_text(rows.Handle(), 0)));
  return names;
}

void SqliteCatalog::AppendTable(const std::string& name, const std::vector<NewColumn>& columns) {
  CheckName(name);
  std::string sql = "CREATE TABLE [" + name + "] (";
  for (const NewColumn& column : columns) sql += (&column == &columns.front() ? "" : ", ") + DefinitionOf(column);
  SqliteStatement(Active().Engine(), sql + ")").Run();
}

}  // namespace corvane
