#include "adapters/odbc/OdbcErrors.h"

#include <sqlucode.h>

#include <algorithm>
#include <array>

#include "adapters/odbc/WideText.h"
#include "platform/Conversions.h"
#include "platform/RuntimeError.h"

namespace corvane {
namespace {

// The longest beginning counts: whole states stand before their class.
constexpr std::pair<std::string_view, int> Numbers[] = {
    {"42S02", errors::DataNoTable},       {"42P01", errors::DataNoTable},   {"42S22", errors::DataNoColumn},
    {"42703", errors::DataNoColumn},      {"42", errors::DataSyntax},       {"37", errors::DataSyntax},
    {"22001", errors::DataFieldTooSmall}, {"22", errors::DataTypeMismatch}, {"07006", errors::DataTypeMismatch},
    {"23", errors::DataConstraint},       {"25006", errors::DataReadOnly},  {"40001", errors::DataLocked},
    {"55P03", errors::DataLocked},        {"28", errors::DataLoginRefused},
};

int NumberOf(const std::string& state) {
  const auto found = std::find_if(std::begin(Numbers), std::end(Numbers),
                                  [&](const auto& number) { return state.starts_with(number.first); });
  return found == std::end(Numbers) ? errors::DataFailure : found->second;
}

struct Record {
  std::string State, Text;
};

// The told length is not relied on: some drivers tell that of the text before it was cut off to fit.
template <std::size_t Room>
std::string TextOf(const std::array<SQLWCHAR, Room>& text) {
  const auto end = std::find(text.begin(), text.end(), SQLWCHAR{0});
  return FromWide(text.data(), static_cast<std::size_t>(end - text.begin()));
}

// One of the records of a failure, which count from 1. False when there is none left.
bool Read(SQLSMALLINT kind, SQLHANDLE handle, SQLSMALLINT number, Record& record) {
  std::array<SQLWCHAR, SQL_SQLSTATE_SIZE + 1> state{};
  std::array<SQLWCHAR, 4096> text{};
  SQLINTEGER native = 0;
  SQLSMALLINT length = 0;
  const SQLRETURN result = SQLGetDiagRecW(kind, handle, number, state.data(), &native, text.data(),
                                          static_cast<SQLSMALLINT>(text.size()), &length);
  if (!SQL_SUCCEEDED(result)) return false;
  record = {TextOf(state), Trim(TextOf(text))};
  return true;
}

}  // namespace

// A name whose closing brace is missing swallows what stands behind it.
OdbcErrors::OdbcErrors(const std::string& driver, OdbcString string)
    : driver_(string.WithoutPassword(driver)), string_(std::move(string)) {}

void OdbcErrors::Check(SQLRETURN result, SQLSMALLINT kind, SQLHANDLE handle) const {
  if (SQL_SUCCEEDED(result)) return;
  Record record;
  std::string state, text;
  for (SQLSMALLINT number = 1; Read(kind, handle, number, record); ++number) {
    if (number == 1) state = record.State;
    text += (number == 1 ? "" : "\n") + string_.WithoutPassword(record.Text) + " (" + record.State + ")";
  }
  if (text.empty()) text = "The driver failed and does not say why.";
  throw RuntimeError(NumberOf(state), text, driver_);
}

}  // namespace corvane
