#pragma once

#include <filesystem>
#include <memory>
#include <string_view>

#include "platform/PathMap.h"
#include "platform/data/Connection.h"

namespace corvane {

/// The data layer over files of the store, for the configuration and for file-based target databases.
class SqliteProvider final : public DataProvider {
 public:
  explicit SqliteProvider(PathMap paths);

  std::unique_ptr<Connection> NewConnection() override;
  std::unique_ptr<Recordset> NewRecordset() override;
  std::unique_ptr<Catalog> NewCatalog() override;

  /// Makes a database with the tables and rows of `schema`, raw SQL of the engine that runs in one transaction.
  /// `format` is 3 or 4. Never replaces a file; a failure leaves none.
  static void CreateStore(const std::filesystem::path& file, std::string_view schema, int format);

 private:
  PathMap paths_;
};

}  // namespace corvane
