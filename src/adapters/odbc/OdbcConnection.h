#pragma once

#include <sql.h>

#include "adapters/odbc/OdbcEnvironment.h"
#include "adapters/odbc/OdbcErrors.h"
#include "adapters/odbc/OdbcHandle.h"
#include "platform/data/TargetConnection.h"

namespace corvane {

/// A connection through a driver of ODBC 3. Every statement is committed as it ends.
class OdbcConnection final : public TargetConnection {
 public:
  /// Connects, for 15 seconds at most where the driver keeps such a limit; a statement has 30.
  explicit OdbcConnection(const std::string& connectionString);
  OdbcConnection(const OdbcConnection&) = delete;
  OdbcConnection& operator=(const OdbcConnection&) = delete;
  ~OdbcConnection() override;

  std::string ConnectionString() const override { return connectionString_; }
  std::string DbmsName() const override;
  std::vector<TargetTable> Tables() override;
  void Execute(const std::string& sql) override;

 private:
  using Statement = OdbcHandle<SQL_HANDLE_STMT>;

  std::string DriverOf(const OdbcString& string) const;
  void Check(SQLRETURN result) const { errors_.Check(result, SQL_HANDLE_DBC, handle_.Get()); }
  void Check(SQLRETURN result, const Statement& statement) const;
  void Require(const Statement& statement) const;
  std::string Catalog() const;

  OdbcEnvironment environment_;
  OdbcHandle<SQL_HANDLE_DBC> handle_{environment_.Get()};
  OdbcErrors errors_;
  std::string connectionString_;
};

}  // namespace corvane
