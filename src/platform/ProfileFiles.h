#pragma once

#include <cstddef>
#include <string>

namespace corvane {

/// INI-style files, with the semantics of the classic profile calls: sections and keys match without regard to case,
/// one pair of quotes around a value is dropped, a line that begins with `;` is a comment. Texts are UTF-8; sizes and
/// counts are in characters of the file.
class ProfileFiles {
 public:
  virtual ~ProfileFiles() = default;

  /// The value of a key, or `fallback` where there is none, cut to `size` - 1 characters. The count of characters is
  /// `size` - 1 for a text that did not fit.
  virtual std::size_t GetString(const std::string& section, const std::string& key, const std::string& fallback,
                                std::string& value, std::size_t size, const std::string& path) = 0;
  /// The value as a number: leading digits count, the rest is ignored; `fallback` where the key is missing.
  virtual int GetInt(const std::string& section, const std::string& key, int fallback, const std::string& path) = 0;
  /// All `key=value` lines of a section, each closed by a zero character, cut to `size` - 2 characters.
  virtual std::size_t GetSection(const std::string& section, std::string& lines, std::size_t size,
                                 const std::string& path) = 0;
  /// Writes one value, replacing the one that is there; makes the file where it is missing. False on failure.
  virtual bool WriteString(const std::string& section, const std::string& key, const std::string& value,
                           const std::string& path) = 0;
};

}  // namespace corvane
