#include "core/PrivateProfile.h"

#include <algorithm>

#include "platform/RuntimeError.h"

namespace corvane {
namespace {

constexpr std::size_t ValueBuffer = 512;
constexpr std::size_t SectionBuffer = 30000;

}  // namespace

PrivateProfile::PrivateProfile(ProfileFiles& profiles, Files& files) : profiles_(profiles), files_(files) {}

bool PrivateProfile::CreateINIFile() const {
  try {
    files_.Write(FileName, "");
    return true;
  } catch (const RuntimeError&) {
    return false;
  }
}

bool PrivateProfile::GetStringValue(const std::string& section, const std::string& key, std::string& value) const {
  const std::size_t count = profiles_.GetString(section, key, "", value, ValueBuffer, FileName);
  // A full buffer gives its size less one; less two is held for full as well, though such a value fits.
  if (count != 0 && count != ValueBuffer - 1 && count != ValueBuffer - 2) return true;
  value.clear();
  return false;
}

bool PrivateProfile::GetIntValue(const std::string& section, const std::string& key, int& value) const {
  value = profiles_.GetInt(section, key, value, FileName);
  return true;
}

bool PrivateProfile::WriteString(const std::string& section, const std::string& key, const std::string& value) const {
  return profiles_.WriteString(section, key, value, FileName);
}

int PrivateProfile::GetSectionSize(const std::string& section) const {
  std::string lines;
  profiles_.GetSection(section, lines, SectionBuffer, FileName);
  return static_cast<int>(std::count(lines.begin(), lines.end(), '='));
}

}  // namespace corvane
