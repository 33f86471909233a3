#pragma once

#include "platform/data/TargetConnection.h"

namespace corvane {

/// Databases that are reached through the drivers of ODBC (ISO/IEC 9075-3, Call-Level Interface).
class OdbcConnector final : public TargetConnector {
 public:
  std::unique_ptr<TargetConnection> Open(const std::string& connectionString) override;
  std::vector<std::string> Drivers() override;
  std::vector<std::string> DataSources() override;
};

}  // namespace corvane
