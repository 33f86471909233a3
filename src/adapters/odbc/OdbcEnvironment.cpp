#include "adapters/odbc/OdbcEnvironment.h"

#include <sqlext.h>
#include <sqlucode.h>

#include <array>

#include "adapters/odbc/WideText.h"

namespace corvane {
namespace {

// SQLDriversW and SQLDataSourcesW give pairs in the same way, one with each call.
template <class Function>
std::vector<std::pair<std::string, std::string>> List(SQLHANDLE environment, Function next) {
  std::vector<std::pair<std::string, std::string>> pairs;
  std::array<SQLWCHAR, 1024> first{}, second{};
  const auto size = static_cast<SQLSMALLINT>(first.size());
  SQLSMALLINT firstLength = 0, secondLength = 0;
  const auto text = [size](const auto& buffer, SQLSMALLINT length) {
    return FromWide(buffer.data(), static_cast<std::size_t>(std::min<SQLSMALLINT>(length, size - 1)));
  };
  for (SQLUSMALLINT step = SQL_FETCH_FIRST;; step = SQL_FETCH_NEXT) {
    if (!SQL_SUCCEEDED(next(environment, step, first.data(), size, &firstLength, second.data(), size, &secondLength)))
      return pairs;
    pairs.emplace_back(text(first, firstLength), text(second, secondLength));
  }
}

}  // namespace

OdbcEnvironment::OdbcEnvironment() {
  const std::uintptr_t version = SQL_OV_ODBC3;
  SQLSetEnvAttr(Get(), SQL_ATTR_ODBC_VERSION, reinterpret_cast<SQLPOINTER>(version), 0);
}

std::vector<std::string> OdbcEnvironment::Drivers() const {
  std::vector<std::string> names;
  for (auto& [name, attributes] : List(Get(), SQLDriversW)) names.push_back(std::move(name));
  return names;
}

std::vector<std::pair<std::string, std::string>> OdbcEnvironment::DataSources() const {
  return List(Get(), SQLDataSourcesW);
}

}  // namespace corvane
