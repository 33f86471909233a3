#pragma once

#include <string>
#include <string_view>

#include "adapters/settings/NameTable.h"
#include "platform/RegistryStore.h"

namespace corvane::settings {

/// A named value of a key. The key's default value has an empty name.
struct RegistryEntry {
  std::string Name;
  RegistryValue Value;
};

/// A key with its values and the keys below it. The key at the top has no name; below it stand the roots, such as
/// `HKEY_LOCAL_MACHINE`. Paths are parted by `\`; separators too many are passed over.
class RegistryKey {
 public:
  /// How many keys deep a path may go.
  static constexpr int MaxDepth = 512;

  /// True when every part of the path can be the name of a key: no control characters, not too deep.
  static bool IsPath(std::string_view path);
  /// True when a value may have that name.
  static bool IsValueName(std::string_view name);

  /// The key at the path below this one; null when there is none. The empty path is this key.
  RegistryKey* Find(std::string_view path);
  /// The same, made with all keys on the way where they are missing.
  RegistryKey& Make(std::string_view path);

  std::string Name;
  NameTable<RegistryEntry> Values;
  NameTable<RegistryKey> Keys;
};

}  // namespace corvane::settings
