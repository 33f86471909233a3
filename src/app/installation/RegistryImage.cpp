#include "app/installation/RegistryImage.h"

#include "adapters/settings/RegistryText.h"
#include "app/installation/InstallationError.h"
#include "app/installation/TextFile.h"

namespace corvane {

void RegistryImage::Read(const std::filesystem::path& file) {
  if (!settings::ParseRegistry(ReadTextFile(file), top_))
    throw InstallationError(file.string() + " is no registry file");
}

void RegistryImage::SetText(std::string_view key, std::string_view name, const std::string& text) {
  Set(key, name, registry::String, text + '\0');
}

void RegistryImage::SetExpandText(std::string_view key, std::string_view name, const std::string& text) {
  Set(key, name, registry::ExpandString, text + '\0');
}

void RegistryImage::SetNumber(std::string_view key, std::string_view name, std::uint32_t number) {
  std::string bytes;
  for (int shift = 0; shift < 32; shift += 8) bytes += static_cast<char>(number >> shift & 0xFF);
  Set(key, name, registry::Number, bytes);
}

void RegistryImage::Set(std::string_view key, std::string_view name, std::uint32_t type, std::string bytes) {
  top_.Make(key).Values.Make(name).Value = {type, std::move(bytes)};
}

void RegistryImage::Write(const std::filesystem::path& file) const {
  WriteTextFile(file, settings::FormatRegistry(top_));
}

}  // namespace corvane
