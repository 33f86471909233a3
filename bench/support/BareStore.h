#pragma once

#include <sqlite3.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

namespace corvane::bench {

/// A database through the engine's own interface, opened as the console opens it. Raises `std::runtime_error`.
class BareStore {
 public:
  explicit BareStore(const std::filesystem::path& file);

  /// Runs statements that give no rows.
  void Run(const std::string& sql);
  /// Steps over the rows of a query without reading them, and gives their number.
  std::size_t Walk(const std::string& sql);
  void ForEach(const std::string& sql, const std::function<void(sqlite3_stmt* row)>& visit);

 private:
  struct Closer {
    void operator()(sqlite3* engine) const { sqlite3_close_v2(engine); }
  };

  std::unique_ptr<sqlite3, Closer> engine_;
};

/// A field of the row that a statement stands on, as text.
std::string TextOf(sqlite3_stmt* row, int column);

}  // namespace corvane::bench
