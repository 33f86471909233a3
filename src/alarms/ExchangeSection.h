#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace corvane {

class PrivateProfile;

/// A section of an exchange file: lines whose keys are a stem and a number from 1. How many numbers count follows from
/// the section's first 30000 characters; each value is read once. The file outlives this.
class ExchangeSection {
 public:
  ExchangeSection(const PrivateProfile& file, const char* name, const char* stem);

  /// The values of the numbers from 1. One is empty where its number names no line, or a line that is too long to read.
  const std::vector<std::string>& Lines() const { return lines_; }
  /// Writes a line under the next number, which it gives. Raises `PathFileAccess` when it cannot be written.
  int Append(const std::string& line);

 private:
  std::string KeyOf(std::size_t number) const;
  void ReadFrom(std::size_t number);

  const PrivateProfile& file_;
  const char* name_;
  const char* stem_;
  std::vector<std::string> lines_;
};

/// The number of the first line that begins with the text, or is the text; 0 for none.
int FindPrefix(const std::vector<std::string>& lines, std::string_view prefix);
int FindLine(const std::vector<std::string>& lines, std::string_view line);

/// The four sections by their names and the stems of their keys.
namespace exchange {
ExchangeSection Alarms(const PrivateProfile& file);
ExchangeSection Categories(const PrivateProfile& file);
ExchangeSection Bundles(const PrivateProfile& file);
ExchangeSection Members(const PrivateProfile& file);
}  // namespace exchange

}  // namespace corvane
