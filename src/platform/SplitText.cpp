#include "platform/SplitText.h"

namespace corvane {

std::vector<std::string> SplitText(std::string_view text, char separator) {
  std::vector<std::string> parts;
  for (std::size_t at = 0; at != text.npos;) {
    const std::size_t end = text.find(separator, at);
    parts.emplace_back(text.substr(at, end == text.npos ? end : end - at));
    at = end == text.npos ? end : end + 1;
  }
  return parts;
}

}  // namespace corvane
