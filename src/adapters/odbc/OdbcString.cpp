#include "adapters/odbc/OdbcString.h"

#include <algorithm>
#include <cctype>

#include "platform/Conversions.h"

namespace corvane {
namespace {

constexpr std::string_view Mask = "***";

// Takes a value in braces off the front, with the closing one.
std::string TakeBraced(std::string_view& text) {
  std::string value;
  for (text.remove_prefix(1); !text.empty(); text.remove_prefix(1)) {
    if (text.front() == '}') {
      text.remove_prefix(1);
      if (!text.starts_with('}')) break;
    }
    value += text.front();
  }
  return value;
}

std::string_view TakeUpTo(std::string_view& text, char sign) {
  const std::string_view taken = text.substr(0, text.find(sign));
  text.remove_prefix(std::min(taken.size() + 1, text.size()));
  return taken;
}

std::string TakeValue(std::string_view& text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  const std::string braced = text.starts_with('{') ? TakeBraced(text) : "";
  const std::string_view plain = TakeUpTo(text, ';');
  return braced.empty() ? Trim(plain) : braced;
}

bool IsWordCharacter(std::string_view text, std::size_t at) {
  return at < text.size() && (std::isalnum(static_cast<unsigned char>(text[at])) || (text[at] & 0x80) != 0);
}

bool IsPassword(std::string_view key) {
  const std::string name = UpperCase(Trim(key));
  return name.ends_with("PWD") || name.ends_with("PASSWORD");
}

// A string that a driver echoes may hold the password of a data source, which the caller never gave.
void MaskValues(std::string& message) {
  for (std::size_t at = 0; (at = message.find('=', at)) != message.npos; ++at) {
    if (!IsPassword(std::string_view(message).substr(0, at))) continue;
    std::string_view rest = std::string_view(message).substr(at + 1);
    TakeValue(rest);
    const std::size_t end = message.size() - rest.size();
    message.replace(at + 1, end - at - 1, std::string(Mask) + (message[end - 1] == ';' ? ";" : ""));
  }
}

// Within a word it is left: a short password would be readable from the holes that it leaves in the message.
void MaskWord(const std::string& word, std::string& message) {
  for (std::size_t at = 0; (at = message.find(word, at)) != message.npos;) {
    const std::size_t end = at + word.size();
    const bool begins = !IsWordCharacter(word, 0) || at == 0 || !IsWordCharacter(message, at - 1);
    const bool ends = !IsWordCharacter(word, word.size() - 1) || !IsWordCharacter(message, end);
    if (begins && ends) message.replace(at, word.size(), Mask);
    at += begins && ends ? Mask.size() : 1;
  }
}

}  // namespace

OdbcString::OdbcString(std::string_view text) {
  while (!text.empty()) {
    const std::string_view key = text.substr(0, text.find_first_of("=;"));
    text.remove_prefix(key.size());
    const bool hasValue = text.starts_with('=');
    text.remove_prefix(std::min<std::size_t>(1, text.size()));
    if (hasValue) attributes_.emplace_back(Trim(key), TakeValue(text));
  }
}

std::string OdbcString::Find(std::string_view key) const {
  const auto found = std::find_if(attributes_.begin(), attributes_.end(),
                                  [&](const auto& attribute) { return SameText(attribute.first, key); });
  return found == attributes_.end() ? "" : found->second;
}

bool OdbcString::HasPassword() const {
  return std::any_of(attributes_.begin(), attributes_.end(), [](const auto& one) { return IsPassword(one.first); });
}

std::string OdbcString::WithoutPassword(std::string message) const {
  MaskValues(message);
  for (const auto& [key, value] : attributes_)
    if (IsPassword(key) && !value.empty()) MaskWord(value, message);
  return message;
}

}  // namespace corvane
