#include "adapters/sqlite/ConnectionString.h"

#include <sstream>

#include "adapters/sqlite/StoreErrors.h"
#include "platform/Conversions.h"

namespace corvane {
namespace {

int FormatOfProvider(const std::string& provider) {
  if (SameText(provider, "Microsoft.Jet.OLEDB.3.51")) return 3;
  if (SameText(provider, "Microsoft.Jet.OLEDB.4.0")) return 4;
  throw StoreError(errors::DataFailure, "The database provider '" + provider + "' cannot be found.");
}

}  // namespace

ConnectionString ConnectionString::Parse(const std::string& text) {
  std::string provider;
  ConnectionString parsed;
  std::istringstream settings(text);
  for (std::string setting; std::getline(settings, setting, ';');) {
    const std::size_t sign = setting.find('=');
    if (sign == setting.npos) continue;
    const std::string key = Trim(setting.substr(0, sign));
    if (SameText(key, "Provider")) provider = Trim(setting.substr(sign + 1));
    if (SameText(key, "Data Source")) parsed.DataSource = Trim(setting.substr(sign + 1));
  }
  parsed.NewestFormat = FormatOfProvider(provider);
  // A zero byte would cut the path short and open another file.
  if (parsed.DataSource.empty() || parsed.DataSource.find('\0') != std::string::npos)
    throw StoreError(errors::DataFailure, "The path of the database is missing or wrong.");
  return parsed;
}

}  // namespace corvane
