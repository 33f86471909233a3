#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace corvane {

class modMain;
namespace ui {
class ComboBox;
}

/// What stands in front of a custom domain's name in every list of domains.
inline constexpr std::string_view CustomPrefix = "CUSTOM: ";

/// A computer, by name or address, and the custom domain that it belongs to, without the prefix.
struct CustomMapping {
  std::string Computer;
  std::string Domain;
};

bool IsCustomDomain(std::string_view domain);

/// Renews the custom domains of a box from cdomain.ini, behind the entries that are there. Makes the file where it is
/// missing or empty. A box that its caller had disabled stays disabled.
void LoadCustomDomains(modMain& main, ui::ComboBox& box);

/// Adds the computers that the file maps to a domain, in capitals. The domain may carry the prefix.
void LoadCustomDomainComputers(modMain& main, std::string_view domain, ui::ComboBox& box);

/// The mappings of the file as they are written there. Makes it where it is missing or empty.
std::vector<CustomMapping> LoadCustomMappings(modMain& main);

/// Writes the mappings to the file, in capitals. Those of a longer former list stay behind the new count and no longer
/// hold. From the first line on that cannot be written the file stays as it is.
void SaveCustomMappings(modMain& main, const std::vector<CustomMapping>& mappings);

}  // namespace corvane
