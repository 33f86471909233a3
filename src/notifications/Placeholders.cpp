#include "notifications/Placeholders.h"

namespace corvane {

const std::array<Placeholder, 10> Placeholders{{{"%0 - Alarm Name", "[Alarm Name]"},
                                                {"%1 - Log Type (e.g Security, System, etc.)", "[Log Type]"},
                                                {"%2 - Type Of Event (e.g. Error, Warning, etc.)", "[Event Type]"},
                                                {"%3 - Date and Time", "[Date/Time]"},
                                                {"%4 - Source", "[Source]"},
                                                {"%5 - Category", "[Category]"},
                                                {"%6 - Event ID", "[Event ID]"},
                                                {"%7 - User", "[User]"},
                                                {"%8 - Computer", "[Computer]"},
                                                {"%9 - Description", "[Description]"}}};

std::string ExpandPlaceholders(std::string_view text) {
  std::string shown;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool isToken = text[i] == '%' && i + 1 < text.size() && text[i + 1] >= '0' && text[i + 1] <= '9';
    if (isToken)
      shown += Placeholders[static_cast<std::size_t>(text[++i] - '0')].Shown;
    else
      shown += text[i];
  }
  return shown;
}

}  // namespace corvane
