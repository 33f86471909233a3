// A driver that reaches nothing: its connection string says what it answers and where it writes down what it is asked,
// see support/RecordingDriver.h.
#include <sqlext.h>
#include <sqlucode.h>

#include <cstring>
#include <fstream>
#include <sstream>

#include "adapters/odbc/OdbcString.h"
#include "adapters/odbc/WideText.h"

namespace {

struct Handle {
  corvane::OdbcString String{""};
  std::istringstream Tables;
  std::string Row[4];
  bool Refused = false;
};

Handle& Of(SQLHANDLE handle) { return *static_cast<Handle*>(handle); }

std::string Text(const SQLWCHAR* text) {
  std::size_t length = 0;
  while (text[length] != 0) ++length;
  return corvane::FromWide(text, length);
}

// The length is told in units of so many bytes.
template <class Length>
SQLRETURN Give(const std::string& text, SQLPOINTER to, Length* length, std::size_t unit = 1) {
  const auto wide = corvane::ToWide(text);
  std::memcpy(to, wide.data(), wide.size() * sizeof wide[0]);
  *length = static_cast<Length>((wide.size() - 1) * sizeof wide[0] / unit);
  return SQL_SUCCESS;
}

SQLRETURN Take(SQLHANDLE handle, const std::string& step) {
  std::ofstream(Of(handle).String.Find("RECORD"), std::ios::app) << step << '\n';
  const std::string fail = Of(handle).String.Find("FAIL");
  Of(handle).Refused = !fail.empty() && step.starts_with(fail);
  return Of(handle).Refused ? SQL_ERROR : SQL_SUCCESS;
}

}  // namespace

extern "C" {
SQLRETURN SQLAllocHandle(SQLSMALLINT kind, SQLHANDLE parent, SQLHANDLE* handle) {
  *handle = new Handle;
  if (kind == SQL_HANDLE_STMT) Of(*handle).String = Of(parent).String;
  return SQL_SUCCESS;
}
SQLRETURN SQLFreeHandle(SQLSMALLINT, SQLHANDLE handle) { return delete &Of(handle), SQL_SUCCESS; }
SQLRETURN SQLDriverConnectW(SQLHDBC handle, SQLHWND, SQLWCHAR* given, SQLSMALLINT, SQLWCHAR* whole, SQLSMALLINT,
                            SQLSMALLINT* length, SQLUSMALLINT) {
  Of(handle).String = corvane::OdbcString(Text(given));
  Give(Text(given), whole, length, sizeof *given);
  return Take(handle, "connect");
}
SQLRETURN SQLDisconnect(SQLHDBC handle) { return Take(handle, "disconnect"); }
SQLRETURN SQLGetInfoW(SQLHDBC handle, SQLUSMALLINT kind, SQLPOINTER to, SQLSMALLINT, SQLSMALLINT* length) {
  if (kind != SQL_DBMS_NAME) return SQL_ERROR;
  Give(Of(handle).String.Find("DBMS"), to, length);
  return Take(handle, "name");
}
SQLRETURN SQLExecDirectW(SQLHSTMT handle, SQLWCHAR* sql, SQLINTEGER) { return Take(handle, Text(sql)); }
SQLRETURN SQLTablesW(SQLHSTMT handle, SQLWCHAR*, SQLSMALLINT, SQLWCHAR*, SQLSMALLINT, SQLWCHAR*, SQLSMALLINT, SQLWCHAR*,
                     SQLSMALLINT) {
  Of(handle).Tables.str(Of(handle).String.Find("TABLES"));
  return Take(handle, "tables");
}
SQLRETURN SQLFetch(SQLHSTMT handle) {
  for (int column = 1; column < 4; ++column)
    std::getline(Of(handle).Tables, Of(handle).Row[column], "  .:|"[column + 1]);
  return Of(handle).Tables ? SQL_SUCCESS : SQL_NO_DATA;
}
SQLRETURN SQLGetData(SQLHSTMT handle, SQLUSMALLINT column, SQLSMALLINT, SQLPOINTER to, SQLLEN, SQLLEN* length) {
  return Give(Of(handle).Row[column - 1], to, length);
}
SQLRETURN SQLErrorW(SQLHENV, SQLHDBC connection, SQLHSTMT statement, SQLWCHAR* state, SQLINTEGER* native,
                    SQLWCHAR* text, SQLSMALLINT, SQLSMALLINT* length) {
  Handle& handle = Of(statement ? statement : connection);
  if (!std::exchange(handle.Refused, false)) return SQL_NO_DATA;
  *native = 0;
  Give(handle.String.Find("STATE"), state, length);
  return Give("[Corvane][Recorder]" + handle.String.Find("SAY"), text, length, sizeof *text);
}
}
