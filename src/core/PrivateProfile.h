#pragma once

#include <string>

#include "platform/Files.h"
#include "platform/ProfileFiles.h"

namespace corvane {

/// One INI-style file. `FileName`, its full path, is set before any call.
class PrivateProfile {
 public:
  PrivateProfile(ProfileFiles& profiles, Files& files);

  std::string FileName;

  /// Makes the file, and empties the one that is there. False on failure.
  bool CreateINIFile() const;
  /// Reads a value of up to 509 characters. A missing, empty or longer one gives an empty text and false.
  bool GetStringValue(const std::string& section, const std::string& key, std::string& value) const;
  /// Reads a number; a missing one leaves `value` as it comes in. Always true.
  bool GetIntValue(const std::string& section, const std::string& key, int& value) const;
  /// Writes a value. False on failure.
  bool WriteString(const std::string& section, const std::string& key, const std::string& value) const;
  /// The number of "=" characters in the section's first 30000 characters: the number of its lines as long as no value
  /// holds such a character.
  int GetSectionSize(const std::string& section) const;

 private:
  ProfileFiles& profiles_;
  Files& files_;
};

}  // namespace corvane
