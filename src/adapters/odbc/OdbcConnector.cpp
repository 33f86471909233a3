#include "adapters/odbc/OdbcConnector.h"

#include "adapters/odbc/OdbcConnection.h"
#include "adapters/odbc/OdbcEnvironment.h"

namespace corvane {

std::unique_ptr<TargetConnection> OdbcConnector::Open(const std::string& connectionString) {
  return std::make_unique<OdbcConnection>(connectionString);
}

std::vector<std::string> OdbcConnector::Drivers() { return OdbcEnvironment().Drivers(); }

std::vector<std::string> OdbcConnector::DataSources() {
  std::vector<std::string> names;
  for (auto& [name, driver] : OdbcEnvironment().DataSources()) names.push_back(std::move(name));
  return names;
}

}  // namespace corvane
