#pragma once

#include <sql.h>

#include <string>

#include "adapters/odbc/OdbcString.h"

namespace corvane {

/// Turns what a driver refuses into errors that bear the driver's name and words, and never a password.
class OdbcErrors {
 public:
  /// `driver` signs the errors; `string` holds the passwords to mask.
  OdbcErrors(const std::string& driver, OdbcString string);

  /// Raises the diagnostics of the handle unless the result is a success. The number follows from the SQLSTATE (of
  /// ISO/IEC 9075 or ODBC), which stands behind each message.
  void Check(SQLRETURN result, SQLSMALLINT kind, SQLHANDLE handle) const;

 private:
  std::string driver_;
  OdbcString string_;
};

}  // namespace corvane
