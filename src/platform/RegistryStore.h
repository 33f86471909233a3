#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace corvane {

/// An open registry key, or one of the predefined roots. 0 is no key.
using RegistryHandle = std::uint64_t;

namespace registry {
inline constexpr RegistryHandle ClassesRoot = 0x80000000;
inline constexpr RegistryHandle LocalMachine = 0x80000002;

// Status numbers of the calls.
inline constexpr long Ok = 0;
inline constexpr long NotFound = 2;
inline constexpr long AccessDenied = 5;
inline constexpr long InvalidHandle = 6;
inline constexpr long NetworkPathNotFound = 53;
inline constexpr long MoreData = 234;
inline constexpr long NoMoreItems = 259;

// Types of values. The bytes of a string are its UTF-8 text with the final zero; a number is 4 bytes, little-endian.
inline constexpr std::uint32_t String = 1;
inline constexpr std::uint32_t ExpandString = 2;
inline constexpr std::uint32_t Binary = 3;
inline constexpr std::uint32_t Number = 4;
inline constexpr std::uint32_t MultiString = 7;

// Access masks as the console passes them.
inline constexpr std::uint32_t CreateSubKey = 4;
inline constexpr std::uint32_t AllButLinks = 63;
inline constexpr std::uint32_t Write = 0x20006;
inline constexpr std::uint32_t Read = 131097;
inline constexpr std::uint32_t Read64 = 131353;
}  // namespace registry

/// A value as it is stored.
struct RegistryValue {
  std::uint32_t Type = 0;
  std::string Bytes;
};

/// The registries of this computer and of others. Keys are parted by `\`; names of keys and values match without regard
/// to case. Every call gives a status number, 0 for success.
class RegistryStore {
 public:
  virtual ~RegistryStore() = default;

  virtual long OpenKey(RegistryHandle root, std::string_view key, std::uint32_t access, RegistryHandle& opened) = 0;
  /// Opens the key and makes it, and those above it, where they are missing.
  virtual long CreateKey(RegistryHandle root, std::string_view key, std::uint32_t access, RegistryHandle& opened) = 0;
  virtual long QueryValue(RegistryHandle key, std::string_view name, RegistryValue& value) = 0;
  virtual long SetValue(RegistryHandle key, std::string_view name, const RegistryValue& value) = 0;
  /// Deletes a key that has no keys below it.
  virtual long DeleteKey(RegistryHandle root, std::string_view key) = 0;
  virtual long DeleteValue(RegistryHandle key, std::string_view name) = 0;
  /// The value of the given index, counted from 0. 259 behind the last one.
  virtual long EnumValue(RegistryHandle key, std::uint32_t index, std::string& name, RegistryValue& value) = 0;
  /// The name of the key of the given index below `key`, counted from 0. 259 behind the last one.
  virtual long EnumKey(RegistryHandle key, std::uint32_t index, std::string& name) = 0;
  /// Connects to another computer's registry. The name carries a leading `\\`.
  virtual long Connect(const std::string& computer, RegistryHandle root, RegistryHandle& connected) = 0;
  virtual long CloseKey(RegistryHandle key) = 0;
};

}  // namespace corvane
