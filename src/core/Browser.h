#pragma once

#include <string>

namespace corvane {

class modMain;

/// The vendor's pages that screens link to.
inline constexpr const char* VendorSite = "https://www.tarnwick.example";
inline constexpr const char* SupportPage = "https://www.tarnwick.example/corvane/support";

/// Command line of the default browser, as the system has it registered; empty when there is none.
std::string DefaultBrowserCommand(modMain& main);

/// Opens a link in the default browser. Says how to go on when none can be started.
void OpenInBrowser(modMain& main, const std::string& link);

}  // namespace corvane
