#pragma once

#include <stdlib.h>

#include "support/TempFolder.h"

namespace corvane::test {

/// Sets ODBC up with the drivers and the data source of the build's `odbcinst.ini` and `odbc.ini`, and no others. It
/// lasts as long as the process, whose first use of ODBC it must precede.
inline void UseTestDrivers() {
  ::setenv("ODBCSYSINI", CORVANE_BINARY_DIR "/tests/odbc/driver", 1);
  ::setenv("ODBCINSTINI", "odbcinst.ini", 1);
  ::setenv("ODBCINI", CORVANE_BINARY_DIR "/tests/odbc/driver/none", 1);
}

/// A driver of ODBC that names itself as the test wishes and records what it is asked.
class RecordingDriver {
 public:
  RecordingDriver() { UseTestDrivers(); }

  /// Connects to a system of this name, such as "Oracle" or "Microsoft SQL Server"; it is also the completed string.
  /// `more` are further attributes: `TABLES={SCHEMA.NAME:TYPE|.NAME:TYPE|};`, `FAIL=` the beginning of the line to
  /// refuse or "name", `STATE=` its SQLSTATE, `SAY=` the driver's words behind "[Corvane][Recorder]".
  std::string String(const std::string& dbms, const std::string& more = "") const {
    return "DRIVER={Corvane Recorder};RECORD=" + (folder_.Path() / "record").string() + ";DBMS={" + dbms + "};" + more;
  }
  /// What was asked since the last call: "connect", "tables", a statement or "disconnect", in a line each.
  std::string Taken() const {
    const std::string taken = folder_.Read("record");
    std::filesystem::remove(folder_.Path() / "record");
    return taken;
  }

 private:
  TempFolder folder_;
};

}  // namespace corvane::test
