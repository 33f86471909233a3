#pragma once

#include <string>

#include "platform/PathMap.h"
#include "platform/data/Connection.h"

namespace corvane {

/// Makes the files that notifications write into: databases of the store without tables.
class SqliteCatalog final : public Catalog {
 public:
  explicit SqliteCatalog(PathMap paths) : paths_(std::move(paths)) {}

  void Create(const std::string& connectionString) override;

 private:
  PathMap paths_;
};

}  // namespace corvane
