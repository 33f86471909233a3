#pragma once

#include <memory>
#include <string>
#include <vector>

namespace corvane {

/// A table as the system behind a connection lists it.
struct TargetTable {
  /// Empty where the system has none.
  std::string Schema;
  std::string Name;
  /// Such as "TABLE", "SYSTEM TABLE" or "VIEW".
  std::string Type;
};

/// An open connection to a database that notifications are written into, other than a file of the console's own store.
/// Failures are raised as `RuntimeError`; `Source` names the driver. Closed by its destructor.
class TargetConnection {
 public:
  virtual ~TargetConnection() = default;

  /// The whole string, by which it can be opened again without a question.
  virtual std::string ConnectionString() const = 0;
  /// The property "DBMS Name": how the system behind it names itself.
  virtual std::string DbmsName() const = 0;
  /// The tables of the present catalog, with those of the system and views.
  virtual std::vector<TargetTable> Tables() = 0;
  /// Runs one statement as it stands.
  virtual void Execute(const std::string& sql) = 0;
};

/// Opens such connections.
class TargetConnector {
 public:
  virtual ~TargetConnector() = default;

  /// Opens by a string such as `DRIVER={PostgreSQL Unicode};SERVER=...;` or `DSN=...;`. Raises on failure; the text of
  /// the error shows no password.
  virtual std::unique_ptr<TargetConnection> Open(const std::string& connectionString) = 0;
  /// Names of the drivers and of the data sources that are set up on this computer.
  virtual std::vector<std::string> Drivers() = 0;
  virtual std::vector<std::string> DataSources() = 0;
};

}  // namespace corvane
