#include "support/TestStore.h"

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

}  // namespace corvane::test
