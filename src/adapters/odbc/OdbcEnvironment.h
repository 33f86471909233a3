#pragma once

#include <string>
#include <utility>
#include <vector>

#include "adapters/odbc/OdbcHandle.h"

namespace corvane {

/// ODBC as it is set up on this computer.
class OdbcEnvironment {
 public:
  OdbcEnvironment();

  SQLHANDLE Get() const { return handle_.Get(); }
  /// The names of the drivers.
  std::vector<std::string> Drivers() const;
  /// The data sources of the user and of the system, each with the name of its driver.
  std::vector<std::pair<std::string, std::string>> DataSources() const;

 private:
  OdbcHandle<SQL_HANDLE_ENV> handle_{SQL_NULL_HANDLE};
};

}  // namespace corvane
