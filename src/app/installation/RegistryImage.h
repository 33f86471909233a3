#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "adapters/settings/RegistryKey.h"

namespace corvane {

/// A registry in the making: read from a template or empty, completed, and written as a file of the registry store.
/// Keys begin with their root, such as `HKEY_LOCAL_MACHINE\Software`.
class RegistryImage {
 public:
  /// Reads a registry file. Raises `InstallationError`.
  void Read(const std::filesystem::path& file);

  void SetText(std::string_view key, std::string_view name, const std::string& text);
  /// A text in which the reader replaces variables such as `%SystemRoot%`.
  void SetExpandText(std::string_view key, std::string_view name, const std::string& text);
  void SetNumber(std::string_view key, std::string_view name, std::uint32_t number);

  /// Writes the registry as a new file. Raises `InstallationError`.
  void Write(const std::filesystem::path& file) const;

 private:
  void Set(std::string_view key, std::string_view name, std::uint32_t type, std::string bytes);

  settings::RegistryKey top_;
};

}  // namespace corvane
