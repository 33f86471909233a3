#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace corvane {

/// The text of a lab file: sections in square brackets, `key = value` lines and comment lines that begin with `;`.
/// Names match without regard to case. A change replaces one line and leaves every other byte as it is.
class LabFile {
 public:
  struct Entry {
    std::string Key, Value;
    std::size_t Line = 0;
  };
  struct Section {
    std::string Name;
    std::size_t Line = 0;
    std::vector<Entry> Entries;
  };

  /// Raises 380 with the number of a line that is none of the above.
  explicit LabFile(const std::string& text);

  const std::vector<Section>& Sections() const { return sections_; }
  /// Sets a value of a section that is there; a new key goes behind the section's last one.
  void Set(const std::string& section, const std::string& key, const std::string& value);
  std::string Text() const;

  /// Raises 380 for a line, counted from 0.
  [[noreturn]] static void RaiseAt(std::size_t line, const std::string& what);

 private:
  void Index();

  std::vector<std::string> lines_;
  std::vector<Section> sections_;
};

}  // namespace corvane
