#include "support/TestStore.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <string>

#include "platform/Conversions.h"

namespace corvane::test {
namespace {

constexpr std::string_view Installation = "C:\\Corvane";

PathMap MapTo(const std::filesystem::path& folder) {
  return [folder](const std::string& path) {
    const bool inside = SameText(std::string_view(path).substr(0, Installation.size()), Installation);
    std::string rest = inside ? path.substr(Installation.size()) : path;
    std::replace(rest.begin(), rest.end(), '\\', '/');
    return inside ? std::filesystem::path(folder.string() + rest) : std::filesystem::path(rest);
  };
}

}  // namespace

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

TestStore::TestStore(int format) : Provider(MapTo(Folder)) {
  // Made once and copied afterwards: every test has a file of its own, and making one waits for the disk.
  static std::map<int, std::string> made;
  std::string& bytes = made[format];
  if (!bytes.empty()) {
    Place.Write("corvane.mdb", bytes);
    return;
  }
  std::ifstream schema(CORVANE_SOURCE_DIR "/data/schema.sql");
  SqliteProvider::CreateStore(File, std::string{std::istreambuf_iterator<char>(schema), {}}, format);
  bytes = Place.Read("corvane.mdb");
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
