#pragma once

#include <string>

namespace corvane {

/// What the store takes from a connection string such as `Provider=Microsoft.Jet.OLEDB.4.0;Data Source=C:\a.mdb;`.
struct ConnectionString {
  /// Newest file format that the provider opens: 3 for 3.51, 4 for 4.0.
  int NewestFormat = 0;
  /// The file, in the console's way of writing paths.
  std::string DataSource;

  /// Raises `DataFailure` for another provider or without a data source. Keys match without regard to case; other
  /// settings are passed over.
  static ConnectionString Parse(const std::string& text);
};

}  // namespace corvane
