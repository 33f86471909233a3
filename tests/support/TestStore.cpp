#include "support/TestStore.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <map>

#include "adapters/linux/HostPaths.h"
#include "app/installation/TextFile.h"

namespace corvane::test {

std::string Ask(const std::filesystem::path& file, const std::string& sql) {
  sqlite3* database = nullptr;
  EXPECT_EQ(SQLITE_OK, sqlite3_open(file.c_str(), &database));
  std::string text;
  const auto addRow = [](void* to, int count, char** cells, char**) {
    auto& rows = *static_cast<std::string*>(to);
    for (int i = 0; i < count; ++i) rows += std::string(i > 0 ? "|" : "") + (cells[i] ? cells[i] : "NULL");
    rows += "\n";
    return 0;
  };
  char* error = nullptr;
  EXPECT_EQ(SQLITE_OK, sqlite3_exec(database, sql.c_str(), addRow, &text, &error)) << sql << ": " << error;
  sqlite3_free(error);
  sqlite3_close(database);
  return text;
}

TestStore::TestStore(int format) : Provider(HostPaths(Folder)) {
  // Made once and copied afterwards: every test has a file of its own, and making one waits for the disk.
  static std::map<int, std::string> made;
  if (made[format].empty()) {
    SqliteProvider::CreateStore(File, ReadTextFile(CORVANE_SOURCE_DIR "/data/schema.sql"), format);
    made[format] = Place.Read("corvane.mdb");
  }
  Place.Write("corvane.mdb", made[format]);
}

std::unique_ptr<Connection> TestStore::Connect() {
  auto connection = Provider.NewConnection();
  connection->Open("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=C:\\Corvane\\corvane.mdb;");
  return connection;
}

std::unique_ptr<Recordset> TestStore::Open(Connection& connection, const std::string& source, LockType lock) {
  auto rows = Provider.NewRecordset();
  rows->Open(source, connection, lock == LockType::ReadOnly ? CursorType::ForwardOnly : CursorType::Keyset, lock);
  return rows;
}

}  // namespace corvane::test
