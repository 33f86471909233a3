#include "domains/CustomDomains.h"

#include "core/PassOver.h"
#include "core/PrivateProfile.h"
#include "core/modMain.h"
#include "platform/Conversions.h"
#include "platform/Files.h"
#include "platform/System.h"
#include "platform/ui/ListControls.h"

namespace corvane {
namespace {

std::string MappingKey(int number) { return "Computer" + std::to_string(number); }

std::string MappingFile(modMain& main) { return main.Platform.System.ProgramFolder() + "\\cdomain.ini"; }

PrivateProfile OpenMappings(modMain& main) {
  PrivateProfile profile(main.Platform.Profiles, main.Platform.Files);
  profile.FileName = MappingFile(main);
  std::uintmax_t length = 0;
  PassOver([&] { length = main.Platform.Files.Length(profile.FileName); });
  if (length == 0) {
    profile.CreateINIFile();
    profile.WriteString("General", "NumComputers", "0");
  }
  return profile;
}

void RemoveCustomEntries(ui::ComboBox& box) {
  for (int i = box.Count() - 1; i >= 0; --i)
    if (box[i].find("CUSTOM:") != std::string::npos) box.RemoveItem(i);
}

bool Holds(const ui::ComboBox& box, const std::string& text) {
  for (const std::string& entry : box.All())
    if (SameText(entry, text)) return true;
  return false;
}

}  // namespace

bool IsCustomDomain(std::string_view domain) { return domain.find(CustomPrefix) != std::string_view::npos; }

void LoadCustomDomains(modMain& main, ui::ComboBox& box) {
  const bool enabled = box.Enabled;
  box.Enabled = false;
  RemoveCustomEntries(box);
  box.Enabled = enabled;
  for (const CustomMapping& mapping : LoadCustomMappings(main)) {
    const std::string entry = std::string(CustomPrefix) + UpperCase(mapping.Domain);
    if (!Holds(box, entry)) box.AddItem(entry);
  }
}

void LoadCustomDomainComputers(modMain& main, std::string_view domain, ui::ComboBox& box) {
  const std::string wanted(IsCustomDomain(domain) ? domain.substr(CustomPrefix.size()) : domain);
  for (const CustomMapping& mapping : LoadCustomMappings(main))
    if (SameText(mapping.Domain, wanted)) box.AddItem(UpperCase(mapping.Computer));
}

// A line that is missing or has no bar is passed over.
std::vector<CustomMapping> LoadCustomMappings(modMain& main) {
  PrivateProfile profile = OpenMappings(main);
  int count = 0;
  profile.GetIntValue("General", "NumComputers", count);
  // A garbled count must not hold the console: a file has fewer mappings than bytes.
  std::uintmax_t bytes = 0;
  PassOver([&] { bytes = main.Platform.Files.Length(profile.FileName); });
  std::vector<CustomMapping> mappings;
  for (int i = 1; i <= count && static_cast<std::uintmax_t>(i) <= bytes; ++i) {
    std::string line;
    if (!profile.GetStringValue("Computers", MappingKey(i), line)) continue;
    const std::size_t bar = line.find('|');
    if (bar == std::string::npos) continue;
    const std::string behind = line.substr(bar + 1);
    mappings.push_back({line.substr(0, bar), behind.substr(0, behind.find('|'))});
  }
  return mappings;
}

// The count comes last, so that it never covers a line that is not there.
void SaveCustomMappings(modMain& main, const std::vector<CustomMapping>& mappings) {
  const PrivateProfile profile = OpenMappings(main);
  int number = 0;
  for (const CustomMapping& mapping : mappings)
    if (!profile.WriteString("Computers", MappingKey(++number),
                             UpperCase(mapping.Computer) + "|" + UpperCase(mapping.Domain)))
      return;
  profile.WriteString("General", "NumComputers", std::to_string(number));
}

}  // namespace corvane
