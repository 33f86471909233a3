#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/PathMap.h"
#include "platform/data/Connection.h"

namespace corvane {

class SqliteDatabase;

/// Makes the files that notifications write into, databases of the store, and the tables in them.
class SqliteCatalog final : public Catalog {
 public:
  explicit SqliteCatalog(PathMap paths);
  ~SqliteCatalog() override;

  void Create(const std::string& connectionString) override;
  void SetActiveConnection(const std::string& connectionString) override;
  std::vector<std::string> Tables() override;
  void AppendTable(const std::string& name, const std::vector<NewColumn>& columns) override;

 private:
  SqliteDatabase& Active() const;

  PathMap paths_;
  std::unique_ptr<SqliteDatabase> active_;
};

}  // namespace corvane
