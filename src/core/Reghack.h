#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/RegistryStore.h"
#include "platform/System.h"
#include "platform/data/Value.h"

namespace corvane {

/// The registry of this computer and, through a connected handle, of others. A root is one of the predefined handles or
/// one from `OpenRemoteReg`. No operation shows a message or raises for what is missing or refused: a key or value that
/// cannot be read is an empty text.
class Reghack {
 public:
  /// `yield` serves pending window events; it runs before each step of an enumeration.
  Reghack(RegistryStore& store, System& system, std::function<void()> yield = {});

  /// Make a key, and those above it, and close it again. True on success.
  bool CreateNewRemoteKey(std::string_view key, RegistryHandle root);
  bool CreateNewKey(std::string_view key, RegistryHandle root);

  /// Write a value under `HKEY_CLASSES_ROOT`, `HKEY_LOCAL_MACHINE` or the given root; the key must be there. The type
  /// is `registry::String` or `registry::Number`, and the value is converted to it: raises 13 or 6 where that fails.
  void SetKeyValueHKCR(std::string_view key, std::string_view name, const Value& value, std::uint32_t type);
  void SetKeyValue(std::string_view key, std::string_view name, const Value& value, std::uint32_t type);
  /// False when the key cannot be opened or the value is not written.
  bool SetRemoteKeyValue(std::string_view key, std::string_view name, const Value& value, std::uint32_t type,
                         RegistryHandle root);
  /// Writes a value of an open key: a string with a zero added, or 4 bytes. Another type writes nothing and gives 0.
  long SetValueEx(RegistryHandle handle, std::string_view name, std::uint32_t type, const Value& value);

  /// Read a value. A string comes with the zero that ends it, which `DeNullString` cuts; a number in signed decimal,
  /// without one.
  std::string GetRemoteKeyValue(std::string_view key, std::string_view name, RegistryHandle root) const;
  std::string GetKeyValueHKCR(std::string_view key, std::string_view name) const;
  std::string GetKeyValue64(std::string_view key, std::string_view name) const;
  std::string GetKeyValue(std::string_view key, std::string_view name) const;
  /// Reads a value of an open key as above and gives the status: -1 for a type that is neither string nor number. The
  /// value is empty unless the status is 0.
  long QueryValueEx(RegistryHandle handle, std::string_view name, std::string& value) const;

  /// Opens a key to read several of its values, or with full access; 0 on failure.
  RegistryHandle OpenKeyToRead(std::string_view key, RegistryHandle root) const;
  RegistryHandle OpenKey(std::string_view key, RegistryHandle root) const;

  /// The system's own folder; empty when it does not fit into 144 characters.
  std::string WinDirectory() const;

  /// Delete a key or a value. True on success.
  bool DeleteKey(std::string_view key, RegistryHandle root);
  bool DeleteRemoteKeyValue(std::string_view key, std::string_view name, RegistryHandle root);
  bool DeleteKeyValue(std::string_view key, std::string_view name);

  /// The text without its last character, whatever that is.
  static std::string DeNullString(std::string_view text);

  /// Name of this computer; empty on failure.
  std::string FindCompName() const;

  /// Connects to another computer's registry, named with or without its leading `\\`; 0 on failure.
  RegistryHandle OpenRemoteReg(std::string_view computer, RegistryHandle root) const;
  void CloseKeyHandle(RegistryHandle handle) const;

  /// Lists the string values of an open key, the values with the zero that ends them. Entries are counted from 1: entry
  /// number `count` is the last and stands at index `count` - 1. A failure on the way gives count 0 and nothing else.
  void EnumSubValues(std::vector<std::string>& names, std::vector<std::string>& values, int& count,
                     RegistryHandle handle) const;
  /// The same for the names of the keys below an open key.
  void EnumSubkeys(std::vector<std::string>& names, int& count, RegistryHandle handle) const;

 private:
  bool Create(std::string_view key, RegistryHandle root, std::uint32_t access);
  std::string Get(std::string_view key, std::string_view name, RegistryHandle root, std::uint32_t access) const;
  bool EnumerateUpToEnd(const std::function<long(std::uint32_t index, std::size_t room)>& step) const;

  RegistryStore& store_;
  System& system_;
  std::function<void()> yield_;
};

}  // namespace corvane
