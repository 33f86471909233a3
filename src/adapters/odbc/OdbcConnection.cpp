#include "adapters/odbc/OdbcConnection.h"

#include <sqlext.h>
#include <sqlucode.h>

#include <algorithm>
#include <array>

#include "adapters/odbc/WideText.h"
#include "platform/Conversions.h"

namespace corvane {
namespace {

constexpr std::uintptr_t LoginSeconds = 15;
constexpr std::uintptr_t StatementSeconds = 30;

// Attributes that are numbers travel as pointers.
SQLPOINTER AsPointer(std::uintptr_t number) { return reinterpret_cast<SQLPOINTER>(number); }

// A text that a driver writes into room of a fixed size and whose length it tells in bytes.
class Answer {
 public:
  SQLWCHAR* Data() { return units_.data(); }
  static constexpr SQLSMALLINT Size() { return sizeof units_; }
  // What did not fit is cut off. A negative length stands for Null.
  std::string Text(SQLLEN bytes) const {
    const SQLLEN units = std::clamp<SQLLEN>(bytes / SQLLEN{sizeof(SQLWCHAR)}, 0, SQLLEN{Room} - 1);
    return FromWide(units_.data(), static_cast<std::size_t>(units));
  }

 private:
  static constexpr std::size_t Room = 1024;
  std::array<SQLWCHAR, Room> units_{};
};

std::string Column(SQLHANDLE row, SQLUSMALLINT number) {
  Answer answer;
  SQLLEN bytes = SQL_NULL_DATA;
  if (!SQL_SUCCEEDED(SQLGetData(row, number, SQL_C_WCHAR, answer.Data(), answer.Size(), &bytes))) return "";
  return answer.Text(bytes);
}

}  // namespace

OdbcConnection::OdbcConnection(const std::string& connectionString)
    : errors_(DriverOf(OdbcString(connectionString)), OdbcString(connectionString)),
      connectionString_(connectionString) {
  SQLSetConnectAttrW(handle_.Get(), SQL_ATTR_LOGIN_TIMEOUT, AsPointer(LoginSeconds), SQL_IS_UINTEGER);
  std::vector<SQLWCHAR> given = ToWide(connectionString), completed(8192);
  const auto room = static_cast<SQLSMALLINT>(completed.size());
  SQLSMALLINT length = 0;
  Check(SQLDriverConnectW(handle_.Get(), nullptr, given.data(), SQL_NTS, completed.data(), room, &length,
                          SQL_DRIVER_NOPROMPT));
  const std::string whole = FromWide(completed.data(), static_cast<std::size_t>(std::clamp<int>(length, 0, room - 1)));
  // A driver may leave the password out; without it nobody could open the connection again.
  const bool opensAgain = length > 0 && length < room;
  if (opensAgain && OdbcString(whole).HasPassword() >= OdbcString(connectionString).HasPassword())
    connectionString_ = whole;
}

OdbcConnection::~OdbcConnection() { SQLDisconnect(handle_.Get()); }

// A data source stands for its driver.
std::string OdbcConnection::DriverOf(const OdbcString& string) const {
  const std::string driver = string.Find("DRIVER"), source = string.Find("DSN");
  if (!driver.empty()) return driver;
  for (const auto& [name, itsDriver] : environment_.DataSources())
    if (SameText(name, source) && !itsDriver.empty()) return itsDriver;
  return source.empty() ? "ODBC" : source;
}

void OdbcConnection::Check(SQLRETURN result, const Statement& statement) const {
  errors_.Check(result, SQL_HANDLE_STMT, statement.Get());
}

void OdbcConnection::Require(const Statement& statement) const {
  if (!statement.Get()) Check(SQL_ERROR);
  SQLSetStmtAttrW(statement.Get(), SQL_ATTR_QUERY_TIMEOUT, AsPointer(StatementSeconds), SQL_IS_UINTEGER);
}

std::string OdbcConnection::DbmsName() const {
  Answer answer;
  SQLSMALLINT bytes = 0;
  Check(SQLGetInfoW(handle_.Get(), SQL_DBMS_NAME, answer.Data(), answer.Size(), &bytes));
  return answer.Text(bytes);
}

// Empty where the system has none, or none is chosen.
std::string OdbcConnection::Catalog() const {
  Answer answer;
  SQLINTEGER bytes = 0;
  const SQLRETURN result =
      SQLGetConnectAttrW(handle_.Get(), SQL_ATTR_CURRENT_CATALOG, answer.Data(), answer.Size(), &bytes);
  return SQL_SUCCEEDED(result) ? answer.Text(bytes) : "";
}

std::vector<TargetTable> OdbcConnection::Tables() {
  const Statement statement(handle_.Get());
  Require(statement);
  const std::string catalog = Catalog();
  std::vector<SQLWCHAR> wide = ToWide(catalog);
  Check(
      SQLTablesW(statement.Get(), catalog.empty() ? nullptr : wide.data(), SQL_NTS, nullptr, 0, nullptr, 0, nullptr, 0),
      statement);
  std::vector<TargetTable> tables;
  for (SQLRETURN result = SQL_SUCCESS; (result = SQLFetch(statement.Get())) != SQL_NO_DATA;) {
    Check(result, statement);
    // Columns are read in their order, as many drivers demand. The catalog was a pattern, in which `_` is any
    // character.
    const std::string itsCatalog = Column(statement.Get(), 1);
    TargetTable table{Column(statement.Get(), 2), Column(statement.Get(), 3), Column(statement.Get(), 4)};
    if (catalog.empty() || itsCatalog.empty() || SameText(itsCatalog, catalog)) tables.push_back(std::move(table));
  }
  return tables;
}

// An UPDATE or DELETE that meets no row has succeeded.
void OdbcConnection::Execute(const std::string& sql) {
  const Statement statement(handle_.Get());
  Require(statement);
  std::vector<SQLWCHAR> wide = ToWide(sql);
  const SQLRETURN result = SQLExecDirectW(statement.Get(), wide.data(), SQL_NTS);
  if (result != SQL_NO_DATA) Check(result, statement);
}

}  // namespace corvane
