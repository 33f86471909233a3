#pragma once

#include <string>

namespace corvane {

class modMain;
namespace ui {
class ComboBox;
}

/// Name of a controller of the domain, or empty. Comes with its leading `\\` on systems without a directory.
std::string DomainControllerName(modMain& main, const std::string& domain);

/// The same without leading `\\` where a directory answered.
std::string FlatDomainName(modMain& main, const std::string& domain);

/// Fills a box with the primary domain and those it trusts, and chooses the default domain, else the first entry.
void FillDomainList(modMain& main, ui::ComboBox& box);

/// Adds the domains that logs are registered in and that the box does not hold yet, in capitals.
void AddDatabaseDomains(modMain& main, ui::ComboBox& box);

}  // namespace corvane
