#pragma once

#include <filesystem>
#include <memory>

#include "adapters/sqlite/SqliteProvider.h"
#include "support/TempFolder.h"

namespace corvane::test {

/// A fresh configuration database, without rows, in a folder of its own that the console knows as `C:\Corvane`. The
/// folder goes with this object.
struct TestStore {
  explicit TestStore(int format = 3);

  /// A connection that is open already.
  std::unique_ptr<Connection> Connect();

  TempFolder Place;
  const std::filesystem::path& Folder = Place.Path();
  std::filesystem::path File = Folder / "corvane.mdb";
  SqliteProvider Provider;
};

}  // namespace corvane::test
