#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/data/TargetConnection.h"

namespace corvane {

class modMain;

/// What a database that notifications are to write into was found to hold.
struct TargetListing {
  /// Opens it again without a question.
  std::string ConnectionString;
  bool IsOracle = false;
  /// As statements name them: an Oracle table by its schema, ".", and name.
  std::vector<std::string> Tables;
};

/// The databases that notifications write into, and the tables of events in them: a file, or a system that is reached
/// over ODBC.
class TargetTables {
 public:
  TargetTables(modMain& main, TargetConnector& connector) : main_(main), connector_(connector) {}

  /// Whether a connection text is the path of a file.
  static bool IsFile(const std::string& connectionText);

  /// Asks for a file that is there or is to be made. Nothing when the user cancels.
  std::optional<std::string> AskForFile() const;
  /// The tables of a file with provider 3.51 or, where that fails, 4.0. A file that is not there is made; nothing when
  /// that fails, which the user has been told. Raises when the file cannot be opened.
  std::optional<std::vector<std::string>> TablesOfFile(const std::string& path) const;
  /// The same with provider 3.51 and no other.
  std::vector<std::string> TablesOfOldFile(const std::string& path) const;

  /// Lets the user put a connection together and opens it. Raises `DataCancelled` when the user cancels.
  TargetListing Prompt() const;
  /// Opens a connection by its string.
  TargetListing ListingOf(const std::string& connectionString) const;

  /// Makes the table in a file, or by one statement behind a connection; each raises on failure.
  void CreateInFile(const std::string& path, const std::string& table) const;
  static void CreateOnServer(TargetConnection& connection, const std::string& table);
  /// Without a tablespace the default one of the login is taken.
  static void CreateOnOracle(TargetConnection& connection, const std::string& schema, const std::string& table,
                             const std::string& tablespace);

  static bool IsOracle(const TargetConnection& connection);
  std::unique_ptr<TargetConnection> Open(const std::string& connectionString) const {
    return connector_.Open(connectionString);
  }

 private:
  std::vector<std::string> ListFile(const char* version, const std::string& path) const;
  bool Exists(const std::string& path) const;

  modMain& main_;
  TargetConnector& connector_;
};

/// Makes a table and tells a failure with its source and description. False on failure.
bool TellTableFailure(modMain& main, const std::function<void()>& create);

}  // namespace corvane
