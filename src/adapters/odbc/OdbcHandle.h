#pragma once

#include <sql.h>

#include <utility>

namespace corvane {

/// Owns a handle of ODBC and frees it; null is none. `Kind` is that of the handle, such as SQL_HANDLE_STMT.
template <SQLSMALLINT Kind>
class OdbcHandle {
 public:
  /// Null on failure, of which the parent knows the reason.
  explicit OdbcHandle(SQLHANDLE parent) { SQLAllocHandle(Kind, parent, &handle_); }
  OdbcHandle(const OdbcHandle&) = delete;
  OdbcHandle& operator=(const OdbcHandle&) = delete;
  ~OdbcHandle() {
    if (handle_) SQLFreeHandle(Kind, handle_);
  }

  SQLHANDLE Get() const { return handle_; }

 private:
  SQLHANDLE handle_ = nullptr;
};

}  // namespace corvane
