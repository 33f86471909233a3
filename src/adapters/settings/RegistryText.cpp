#include "adapters/settings/RegistryText.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace corvane::settings {
namespace {

constexpr std::string_view FirstLine = "Corvane Registry Version 1.00";
constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

std::string_view TrimBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t");
  if (first == text.npos) return {};
  return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

bool DropPrefix(std::string_view& text, std::string_view prefix) {
  if (!text.starts_with(prefix)) return false;
  text.remove_prefix(prefix.size());
  return true;
}

std::string_view TakeLine(std::string_view& text) {
  const std::size_t end = text.find('\n');
  std::string_view line = text.substr(0, end);
  text.remove_prefix(end == text.npos ? text.size() : end + 1);
  if (line.ends_with('\r')) line.remove_suffix(1);
  return TrimBlanks(line);
}

// A quoted text at the front, taken off. A backslash before any other character stands for itself: a path typed by
// hand.
std::optional<std::string> TakeQuoted(std::string_view& text) {
  if (!DropPrefix(text, "\"")) return std::nullopt;
  std::string plain;
  while (!text.empty() && text.front() != '"') {
    const bool escape = text.size() > 1 && text[0] == '\\' && (text[1] == '\\' || text[1] == '"');
    if (escape) text.remove_prefix(1);
    plain += text.front();
    text.remove_prefix(1);
  }
  if (!DropPrefix(text, "\"")) return std::nullopt;
  return plain;
}

std::optional<std::uint32_t> HexNumber(std::string_view digits) {
  std::uint32_t number = 0;
  const auto [end, status] = std::from_chars(digits.data(), digits.data() + digits.size(), number, 16);
  if (status != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
  return number;
}

std::string LittleEndian(std::uint32_t number) {
  std::string bytes;
  for (int shift = 0; shift < 32; shift += 8) bytes += static_cast<char>(number >> shift & 0xFF);
  return bytes;
}

bool ParseDword(std::string_view digits, RegistryValue& value) {
  const auto number = HexNumber(TrimBlanks(digits));
  if (!number) return false;
  value = {registry::Number, LittleEndian(*number)};
  return true;
}

bool ParseBytes(std::string_view list, std::string& bytes) {
  for (list = TrimBlanks(list); !list.empty(); list = TrimBlanks(list)) {
    const std::string_view item = TrimBlanks(list.substr(0, list.find(',')));
    const auto byte = item.size() > 2 ? std::nullopt : HexNumber(item);
    if (!byte) return false;
    bytes += static_cast<char>(*byte);
    const std::size_t comma = list.find(',');
    list.remove_prefix(comma == list.npos ? list.size() : comma + 1);
  }
  return true;
}

// What stands behind `hex`: an optional type in brackets, a colon, the bytes.
bool ParseHex(std::string_view text, RegistryValue& value) {
  value.Type = registry::Binary;
  if (DropPrefix(text, "(")) {
    const std::size_t end = text.find(')');
    const auto type = HexNumber(text.substr(0, end));
    if (!type || end == text.npos) return false;
    value.Type = *type;
    text.remove_prefix(end + 1);
  }
  return DropPrefix(text, ":") && ParseBytes(text, value.Bytes);
}

bool ParseValue(std::string_view text, RegistryValue& value) {
  if (DropPrefix(text, "dword:")) return ParseDword(text, value);
  if (DropPrefix(text, "hex")) return ParseHex(text, value);
  const auto plain = TakeQuoted(text);
  if (!plain || !text.empty()) return false;
  value.Type = registry::String;
  value.Bytes.reserve(plain->size() + 1);
  value.Bytes = *plain;
  value.Bytes += '\0';
  return true;
}

bool ParseEntry(std::string_view line, RegistryKey& key) {
  std::optional<std::string> name;
  if (DropPrefix(line, "@"))
    name.emplace();
  else
    name = TakeQuoted(line);
  line = TrimBlanks(line);
  RegistryValue value;
  if (!name || !DropPrefix(line, "=") || !ParseValue(TrimBlanks(line), value)) return false;
  key.Values.Make(*name).Value = std::move(value);
  return true;
}

// The line with those that continue it.
std::string JoinContinued(std::string_view line, std::string_view& rest) {
  std::string whole(line);
  while (whole.ends_with('\\') && !rest.empty()) {
    whole.pop_back();
    whole += TakeLine(rest);
  }
  return whole;
}

RegistryKey* ParseKeyLine(std::string_view line, RegistryKey& top) {
  if (line.size() < 3 || line.back() != ']') return nullptr;
  const std::string_view path = line.substr(1, line.size() - 2);
  if (!RegistryKey::IsPath(path)) return nullptr;
  RegistryKey* key = &top.Make(path);
  return key == &top ? nullptr : key;
}

// A string can stand between quotes when it is text and one zero ends it; all else is written as bytes.
bool IsPlainText(const RegistryValue& value) {
  const std::string& bytes = value.Bytes;
  return value.Type == registry::String && !bytes.empty() && bytes.back() == '\0' &&
         std::none_of(bytes.begin(), bytes.end() - 1, [](char c) { return static_cast<unsigned char>(c) < ' '; });
}

void AppendQuoted(std::string_view plain, std::string& text) {
  text += '"';
  for (const char c : plain) {
    if (c == '\\' || c == '"') text += '\\';
    text += c;
  }
  text += '"';
}

void AppendHexByte(char byte, std::string& text) {
  constexpr const char* digits = "0123456789abcdef";
  text += digits[static_cast<unsigned char>(byte) >> 4];
  text += digits[static_cast<unsigned char>(byte) & 15];
}

void AppendHex(const RegistryValue& value, std::string& text) {
  text += "hex";
  if (value.Type != registry::Binary) {
    char digits[8];
    const auto end = std::to_chars(digits, digits + sizeof digits, value.Type, 16).ptr;
    text.append("(").append(digits, end).append(")");
  }
  char separator = ':';
  for (const char byte : value.Bytes) {
    text += separator;
    AppendHexByte(byte, text);
    separator = ',';
  }
  if (value.Bytes.empty()) text += separator;
}

void AppendEntry(const RegistryEntry& entry, std::string& text) {
  if (entry.Name.empty())
    text += '@';
  else
    AppendQuoted(entry.Name, text);
  text += '=';
  const RegistryValue& value = entry.Value;
  if (IsPlainText(value)) {
    AppendQuoted(std::string_view(value.Bytes).substr(0, value.Bytes.size() - 1), text);
  } else if (value.Type == registry::Number && value.Bytes.size() == 4) {
    text += "dword:";
    for (std::size_t i = 4; i > 0; --i) AppendHexByte(value.Bytes[i - 1], text);
  } else {
    AppendHex(value, text);
  }
  text += '\n';
}

void AppendKey(const RegistryKey& key, const std::string& path, std::string& text) {
  text.append("\n[").append(path).append("]\n");
  for (const auto& entry : key.Values) AppendEntry(*entry, text);
  for (const auto& below : key.Keys) AppendKey(*below, path + "\\" + below->Name, text);
}

}  // namespace

bool ParseRegistry(std::string_view text, RegistryKey& top) {
  DropPrefix(text, ByteOrderMark);
  if (TakeLine(text) != FirstLine || text.find('\0') != text.npos) return false;
  RegistryKey* key = nullptr;
  while (!text.empty()) {
    const std::string_view line = TakeLine(text);
    if (line.empty() || line.front() == ';') continue;
    if (line.front() == '[') {
      key = ParseKeyLine(line, top);
      if (!key) return false;
    } else if (!key || !(line.back() == '\\' ? ParseEntry(JoinContinued(line, text), *key) : ParseEntry(line, *key))) {
      return false;
    }
  }
  return true;
}

std::string FormatRegistry(const RegistryKey& top) {
  std::string text(FirstLine);
  text += '\n';
  for (const auto& root : top.Keys) AppendKey(*root, root->Name, text);
  return text;
}

}  // namespace corvane::settings
