#include "adapters/odbc/WideText.h"

#include <locale>

#include "platform/RuntimeError.h"

namespace corvane {
namespace {

using Converter = std::codecvt<char16_t, char8_t, std::mbstate_t>;

const Converter& Utf() { return std::use_facet<Converter>(std::locale::classic()); }

}  // namespace

std::vector<SQLWCHAR> ToWide(std::string_view text) {
  const std::u8string bytes(text.begin(), text.end());
  std::u16string wide(bytes.size(), u'\0');
  std::mbstate_t state{};
  const char8_t* read = bytes.data();
  char16_t* written = wide.data();
  const auto end = read + bytes.size();
  if (Utf().in(state, read, end, read, written, written + wide.size(), written) != Converter::ok || read != end)
    throw RuntimeError(errors::DataFailure, "A text for the database is not well-formed UTF-8.");
  std::vector<SQLWCHAR> units(wide.data(), written);
  units.push_back(0);
  return units;
}

std::string FromWide(const SQLWCHAR* text, std::size_t length) {
  const std::u16string wide(text, text + length);
  std::u8string bytes(length * 3, u8'\0');  // a unit takes three bytes at most
  std::mbstate_t state{};
  const char16_t* read = wide.data();
  char8_t* written = bytes.data();
  Utf().out(state, read, read + length, read, written, written + bytes.size(), written);
  return {bytes.data(), written};
}

}  // namespace corvane
