#pragma once

#include <filesystem>
#include <memory>

#include "adapters/sqlite/SqliteProvider.h"
#include "support/TempFolder.h"

namespace corvane::test {

/// The rows of a statement, as the engine itself reads them from the file, past everything that is tested: fields
/// parted by "|", each row closed by a line break.
std::string Ask(const std::filesystem::path& file, const std::string& sql);

/// A fresh configuration database, without rows, in a folder of its own that the console knows as `C:\Corvane`. The
/// folder goes with this object.
struct TestStore {
  explicit TestStore(int format = 3);

  /// A connection that is open already.
  std::unique_ptr<Connection> Connect();
  /// The rows of a query or table through such a connection.
  std::unique_ptr<Recordset> Open(Connection& connection, const std::string& source,
                                  LockType lock = LockType::ReadOnly);
  std::string Ask(const std::string& sql) const { return test::Ask(File, sql); }

  TempFolder Place;
  const std::filesystem::path& Folder = Place.Path();
  std::filesystem::path File = Folder / "corvane.mdb";
  SqliteProvider Provider;
};

}  // namespace corvane::test
