#include "app/installation/WholeNumber.h"

#include <charconv>

namespace corvane {

std::optional<int> WholeNumber(std::string_view text, int least, int most) {
  int number = 0;
  const auto [end, status] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (status != std::errc() || end != text.data() + text.size() || number < least || number > most) return {};
  return number;
}

}  // namespace corvane
