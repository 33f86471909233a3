#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "adapters/settings/NameTable.h"

namespace corvane::settings {

/// The content of an INI file, kept line by line so that a change leaves all else as it is, byte for byte. Lines end
/// with CR LF, LF or CR. Of sections or keys that stand twice the first one counts. Names are UTF-8; values are the
/// file's bytes.
class IniDocument {
 public:
  explicit IniDocument(std::string_view bytes = {});

  /// A key's value without the blanks and the one pair of quotes around it; nothing where the key is missing. Valid
  /// until the next change.
  std::optional<std::string_view> Find(std::string_view section, std::string_view key) const;
  /// The lines of a section but for comments and empty ones, blanks around key and value cut, each closed by a zero.
  std::string Lines(std::string_view section) const;
  /// Sets a key's value: in its place, else behind the last line of its section, else in a new section at the end.
  void Set(std::string_view section, std::string_view key, std::string_view value);
  /// The whole content.
  std::string Bytes() const;

 private:
  // A section with the line that opens it. What stands before the first one is a section that no name finds.
  struct Section {
    std::vector<std::string> Lines;
    std::unordered_map<std::string, std::size_t, NameHash, NameEqual> Keys;
  };

  void AddLine(std::string_view line);
  Section& MakeSection(std::string_view name);
  static std::size_t AppendLine(Section& section, std::string line);
  const Section* FindSection(std::string_view name) const;

  std::string mark_;
  std::vector<Section> sections_;
  std::unordered_map<std::string, std::size_t, NameHash, NameEqual> names_;
};

}  // namespace corvane::settings
