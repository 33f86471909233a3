#include "adapters/settings/RegistryKey.h"

#include <algorithm>

namespace corvane::settings {
namespace {

// Takes the next part off the front of a path; empty when none is left.
std::string_view NextPart(std::string_view& path) {
  while (!path.empty() && path.front() == '\\') path.remove_prefix(1);
  const std::string_view part = path.substr(0, path.find('\\'));
  path.remove_prefix(part.size());
  return part;
}

bool IsControl(char c) { return static_cast<unsigned char>(c) < ' '; }

}  // namespace

bool RegistryKey::IsPath(std::string_view path) {
  if (std::any_of(path.begin(), path.end(), IsControl)) return false;
  int depth = 0;
  while (!NextPart(path).empty()) ++depth;
  return depth <= MaxDepth;
}

bool RegistryKey::IsValueName(std::string_view name) { return std::none_of(name.begin(), name.end(), IsControl); }

RegistryKey* RegistryKey::Find(std::string_view path) {
  RegistryKey* key = this;
  for (std::string_view part = NextPart(path); key && !part.empty(); part = NextPart(path)) key = key->Keys.Find(part);
  return key;
}

RegistryKey& RegistryKey::Make(std::string_view path) {
  RegistryKey* key = this;
  for (std::string_view part = NextPart(path); !part.empty(); part = NextPart(path)) key = &key->Keys.Make(part);
  return *key;
}

}  // namespace corvane::settings
