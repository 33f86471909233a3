#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace corvane {

class modMain;
namespace ui {
class ComboBox;
}

/// What stands in front of a custom domain's name in every list of domains.
inline constexpr std::string_view CustomPrefix = "CUSTOM: ";

bool IsCustomDomain(std::string_view domain);

/// Renews the custom domains of a box from cdomain.ini, behind the entries that are there. Makes the file where it is
/// missing or empty. A box that its caller had disabled stays disabled.
void LoadCustomDomains(modMain& main, ui::ComboBox& box);

/// Adds the computers that the file maps to a domain, in capitals. The domain may carry the prefix.
void LoadCustomDomainComputers(modMain& main, std::string_view domain, ui::ComboBox& box);

}  // namespace corvane
