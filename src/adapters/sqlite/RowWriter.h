#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "platform/data/Value.h"

struct sqlite3;

namespace corvane {

/// Writes single rows of a table, by the names and values of the fields that are set.
class RowWriter {
 public:
  using Fields = std::vector<std::pair<std::string, Value>>;

  RowWriter(sqlite3* engine, const std::string& table);

  /// Adds a row; fields that are not named take their defaults. Gives the hidden number of the row.
  std::int64_t Insert(const Fields& fields);
  /// Changes the row of that number; nothing when another process has removed it.
  void Change(std::int64_t rowId, const Fields& fields);

 private:
  sqlite3* engine_;
  std::string table_;
};

/// A name as the engine's SQL writes it, whatever characters it holds.
std::string QuoteName(const std::string& name);

}  // namespace corvane
