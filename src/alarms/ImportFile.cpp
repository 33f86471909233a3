#include "alarms/ImportFile.h"

#include "alarms/ExchangeSection.h"
#include "core/PrivateProfile.h"
#include "core/modMain.h"

namespace corvane {

void ImportFile::Load(modMain& main, const std::string& path) {
  *this = ImportFile();
  PrivateProfile file(main.Platform.Profiles, main.Platform.Files);
  file.FileName = path;
  alarms_ = exchange::Alarms(file).Lines();
  const ExchangeSection categories = exchange::Categories(file), members = exchange::Members(file);
  for (const std::string& line : categories.Lines())
    if (!line.empty()) categories_.try_emplace(ExchangeLine(line)[0], line);
  for (const std::string& line : members.Lines()) {
    const ExchangeLine member(line);
    if (const auto [place, isNew] = bundles_.try_emplace(member[0]); isNew)
      file.GetStringValue("AlarmGroups", "GroupName" + member.Find(1), place->second);
  }
}

int ImportFile::FindAlarm(std::string_view text) const { return FindPrefix(alarms_, text); }

std::optional<ExchangeLine> ImportFile::FindCategory(const std::string& index) const {
  const auto found = categories_.find(index);
  if (found == categories_.end()) return std::nullopt;
  return ExchangeLine(found->second);
}

std::string ImportFile::FindBundle(int alarm) const {
  const auto found = bundles_.find(std::to_string(alarm));
  return found == bundles_.end() ? std::string() : found->second;
}

}  // namespace corvane
