#include "app/installation/Fields.h"

#include <charconv>

namespace corvane {

std::vector<std::string> SplitFields(std::string_view line, char separator) {
  std::vector<std::string> fields;
  for (std::size_t at = 0; at != line.npos;) {
    const std::size_t end = line.find(separator, at);
    fields.emplace_back(line.substr(at, end == line.npos ? end : end - at));
    at = end == line.npos ? end : end + 1;
  }
  return fields;
}

std::optional<int> WholeNumber(std::string_view text, int least, int most) {
  int number = 0;
  const auto [end, status] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (status != std::errc() || end != text.data() + text.size() || number < least || number > most) return {};
  return number;
}

}  // namespace corvane
