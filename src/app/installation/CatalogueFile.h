#pragma once

#include <istream>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "app/installation/Catalogue.h"

namespace corvane {

/// Reads the text form of the alarm catalogue, which the head of the shipped file describes.
class CatalogueFile {
 public:
  /// `source` is what error texts call the catalogue, mostly its file name.
  explicit CatalogueFile(std::string source) : source_(std::move(source)) {}

  /// Reads and checks a catalogue. Raises an `InstallationError` of the form `source:line: what is wrong` at the first
  /// line that breaks a rule of the console or of the form.
  Catalogue Read(std::istream& text);

 private:
  enum class Entry { None, Category, Alarm, Bundle, Notification };
  using Handler = void (CatalogueFile::*)(const std::string& value);
  struct Keyword;

  static const Keyword* FindKeyword(std::string_view word);
  void ReadLine(std::string_view line);
  void BeginEntry(Entry entry);
  void EndEntry();

  void BeginCategory(const std::string& value);
  void AddLog(const std::string& value);
  void BeginAlarm(const std::string& value);
  void SetComment(const std::string& value);
  void SetThreshold(const std::string& value);
  void AddMatch(const std::string& value);
  void AddAlarm(int os);
  void BeginBundle(const std::string& value);
  void AddMember(const std::string& value);
  void BeginNotification(const std::string& value);
  void SetEmail(const std::string& value);
  void SetPopup(const std::string& value);
  void SetSyslog(const std::string& value);

  std::vector<std::string> Parts(const std::string& value, std::size_t least, std::size_t most) const;
  std::vector<int> OsClasses(const std::string& text) const;
  int Types(const std::string& text) const;
  int Number(const std::string& text, int least, int most) const;
  void CheckText(const std::string& text, std::string_view refused, std::size_t longest) const;
  void TakeName(const std::string& kind, const std::string& name);
  void CheckEvent(int log) const;
  [[noreturn]] void Fail(const std::string& what, int line = 0) const;

  std::string source_;
  int line_ = 0;
  int entryLine_ = 0;
  Entry entry_ = Entry::None;
  Catalogue catalogue_;
  std::string category_;
  CatalogueAlarm alarm_;
  std::set<std::string> names_;
  std::set<std::string> criteria_;
};

}  // namespace corvane
