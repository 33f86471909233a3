#include "adapters/sqlite/StoreErrors.h"

#include <sqlite3.h>

namespace corvane {
namespace {

constexpr int OutOfMemory = 7;

constexpr const char* TooSmall = "The field is too small for the value that was to be stored.";
constexpr const char* WrongType = "A value does not have the type of its field, or lies outside its range.";

// What stands behind `prefix` in the message; empty when the message is another one.
std::string_view Behind(std::string_view message, std::string_view prefix) {
  return message.starts_with(prefix) ? message.substr(prefix.size()) : std::string_view();
}

RuntimeError ConstraintError(int code, std::string_view message) {
  const std::string_view check = Behind(message, "CHECK constraint failed: ");
  if (check.starts_with("type_")) return StoreError(errors::DataTypeMismatch, WrongType);
  if (check.starts_with("len_")) return StoreError(errors::DataFieldTooSmall, TooSmall);
  if (code == SQLITE_CONSTRAINT_NOTNULL)
    return StoreError(errors::DataConstraint, "A field that must have a value has none: " + std::string(message) + ".");
  if (code == SQLITE_CONSTRAINT_UNIQUE || code == SQLITE_CONSTRAINT_PRIMARYKEY)
    return StoreError(errors::DataConstraint, "A row with this key exists already: " + std::string(message) + ".");
  return StoreError(errors::DataConstraint, "A rule of the table is not met: " + std::string(message) + ".");
}

RuntimeError StatementError(std::string_view message) {
  if (const auto table = Behind(message, "no such table: "); !table.empty())
    return StoreError(errors::DataNoTable, "The table '" + std::string(table) + "' does not exist in the database.");
  if (const auto column = Behind(message, "no such column: "); !column.empty())
    return StoreError(errors::DataNoColumn, "The field '" + std::string(column) + "' does not exist.");
  if (message.find(" has no column named ") != message.npos)
    return StoreError(errors::DataNoColumn, "A field does not exist: " + std::string(message) + ".");
  return StoreError(errors::DataSyntax, "Syntax error in the statement: " + std::string(message) + ".");
}

}  // namespace

RuntimeError StoreError(int number, const std::string& description) { return {number, description, "Corvane Store"}; }

RuntimeError ErrorOfCode(int code, std::string_view message) {
  const std::string detail(message);
  switch (code & 0xFF) {
    case SQLITE_ERROR:
      return StatementError(message);
    case SQLITE_CONSTRAINT:
      return ConstraintError(code, message);
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
    case SQLITE_PROTOCOL:
      return StoreError(errors::DataLocked,
                        "The database is locked by another program, most likely the Corvane Service.  Wait a minute "
                        "and try again.");
    case SQLITE_READONLY:
      return StoreError(errors::DataReadOnly, "The database cannot be changed: the file or its folder is read-only.");
    case SQLITE_MISMATCH:
      return StoreError(errors::DataTypeMismatch, WrongType);
    case SQLITE_TOOBIG:
      return StoreError(errors::DataFieldTooSmall, TooSmall);
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
      return StoreError(errors::DataFailure, "The database file is damaged: " + detail + ".");
    case SQLITE_FULL:
      return StoreError(errors::DiskFull, "The database cannot grow: the disk is full.");
    case SQLITE_IOERR:
      return StoreError(errors::DeviceIo, "The database file cannot be read or written: " + detail + ".");
    case SQLITE_NOMEM:
      return StoreError(OutOfMemory, "Out of memory");
    default:
      return StoreError(errors::DataFailure, "The database failed: " + detail + ".");
  }
}

void RaiseLastError(sqlite3* engine) { throw ErrorOfCode(sqlite3_extended_errcode(engine), sqlite3_errmsg(engine)); }

}  // namespace corvane
