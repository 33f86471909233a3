#include "app/installation/CatalogueFile.h"

#include <algorithm>
#include <array>
#include <utility>

#include "app/installation/InstallationError.h"
#include "app/installation/WholeNumber.h"
#include "core/LogTypes.h"
#include "platform/Conversions.h"
#include "platform/SplitText.h"

namespace corvane {
namespace {

// Windows NT 4.0 has the first three logs only.
constexpr int LastLogOfOldest = 3;
constexpr std::size_t LongestCategory = 250, LongestComment = 249, LongestText = 255, LongestTarget = 100;
// A line of this many characters can be exported but not imported again.
constexpr std::size_t LongestExportLine = 510;

// The console refuses quotes and hyphens in names. The others part fields in the exchange file and in node keys.
constexpr std::string_view RefusedInName = "'\"-|=\\";
constexpr std::string_view RefusedInBundle = "'\"-|=\\_";
constexpr std::string_view RefusedInComment = "'\"-|=";
constexpr std::string_view RefusedInText = "|=";

// Failure Audit and Success Audit, the types of the Security log.
constexpr int Audits = 8 + 16;

const std::array<std::string, 5> TypeNames{"Information", "Warning", "Error", "Failure Audit", "Success Audit"};

std::vector<std::string> Split(std::string_view text, char separator) {
  auto parts = SplitText(text, separator);
  for (std::string& part : parts) part = Trim(part);
  return parts;
}

// The classic systems number their audits from 512, the newer ones from 4608 and those of their event log from 1100.
bool IsAudit(int os, int id) {
  return os < OsClassCount ? id >= 512 && id <= 863 : (id >= 1100 && id <= 1108) || (id >= 4608 && id <= 6420);
}

std::string Criteria(const CatalogueAlarm& alarm) {
  return std::to_string(alarm.Os) + "|" + std::to_string(alarm.Types) + "|" + UpperCase(alarm.Source) + "|" +
         std::to_string(alarm.EventId) + "|" + UpperCase(alarm.EventDescription);
}

std::size_t ExportLength(const CatalogueAlarm& alarm) {
  return (alarm.Name + "|" + alarm.Comment + "|" + alarm.CategoryIndex() + "|" + std::to_string(alarm.Types) + "|" +
          alarm.Source + "||||" + std::to_string(alarm.EventId) + "|" + alarm.EventDescription + "|False|" +
          std::to_string(alarm.ThresholdCount) + "|" + std::to_string(alarm.ThresholdTimeout))
      .size();
}

}  // namespace

struct CatalogueFile::Keyword {
  std::string_view Word;
  /// The entry in which it may stand; none for a keyword that begins an entry.
  Entry Within;
  Handler Handle;
};

const CatalogueFile::Keyword* CatalogueFile::FindKeyword(std::string_view word) {
  static const std::array<Keyword, 12> keywords{{
      {"category", Entry::None, &CatalogueFile::BeginCategory},
      {"log", Entry::Category, &CatalogueFile::AddLog},
      {"alarm", Entry::None, &CatalogueFile::BeginAlarm},
      {"comment", Entry::Alarm, &CatalogueFile::SetComment},
      {"threshold", Entry::Alarm, &CatalogueFile::SetThreshold},
      {"match", Entry::Alarm, &CatalogueFile::AddMatch},
      {"bundle", Entry::None, &CatalogueFile::BeginBundle},
      {"member", Entry::Bundle, &CatalogueFile::AddMember},
      {"notification", Entry::None, &CatalogueFile::BeginNotification},
      {"email", Entry::Notification, &CatalogueFile::SetEmail},
      {"popup", Entry::Notification, &CatalogueFile::SetPopup},
      {"syslog", Entry::Notification, &CatalogueFile::SetSyslog},
  }};
  const auto found = std::find_if(keywords.begin(), keywords.end(), [&](const Keyword& k) { return k.Word == word; });
  return found == keywords.end() ? nullptr : &*found;
}

Catalogue CatalogueFile::Read(std::istream& text) {
  for (std::string line; std::getline(text, line);) {
    ++line_;
    if (!line.empty() && line.back() == '\r') line.pop_back();
    line = Trim(line);
    if (!line.empty() && line.front() != '#') ReadLine(line);
  }
  EndEntry();
  if (catalogue_.Alarms.empty()) Fail("the catalogue holds no alarm");
  return std::move(catalogue_);
}

void CatalogueFile::ReadLine(std::string_view line) {
  const std::size_t end = line.find(' ');
  const std::string word(line.substr(0, end));
  const std::string value = end == line.npos ? std::string() : Trim(line.substr(end));
  const Keyword* keyword = FindKeyword(word);
  if (!keyword) Fail("'" + word + "' is no keyword");
  if (value.empty()) Fail("'" + word + "' has no value");
  if (keyword->Within != Entry::None && keyword->Within != entry_) Fail("'" + word + "' cannot stand here");
  (this->*keyword->Handle)(value);
}

void CatalogueFile::BeginEntry(Entry entry) {
  EndEntry();
  entry_ = entry;
  entryLine_ = line_;
}

// A fault that only the end of an entry shows is told with the line on which the entry begins.
void CatalogueFile::EndEntry() {
  if (entry_ == Entry::Category && (catalogue_.Categories.empty() || catalogue_.Categories.back().Name != category_))
    Fail("the category stands in no log", entryLine_);
  if (entry_ == Entry::Alarm && (catalogue_.Alarms.empty() || catalogue_.Alarms.back().Name != alarm_.Name))
    Fail("the alarm matches nothing", entryLine_);
  if (entry_ == Entry::Bundle && catalogue_.Bundles.back().Members.empty()) Fail("the bundle is empty", entryLine_);
  if (entry_ == Entry::Notification && catalogue_.Notifications.back().TypesSupported() == 0)
    Fail("the notification has no target", entryLine_);
}

void CatalogueFile::BeginCategory(const std::string& value) {
  BeginEntry(Entry::Category);
  CheckText(value, RefusedInName, LongestCategory);
  TakeName("category", value);
  category_ = value;
}

void CatalogueFile::AddLog(const std::string& value) {
  const auto parts = Parts(value, 2, 2);
  const int log = LogNumber(parts[1]);
  if (log == 0) Fail("'" + parts[1] + "' is no log");
  for (const int os : OsClasses(parts[0])) {
    if (os == 1 && log > LastLogOfOldest) Fail("OS class 1 has no " + parts[1] + " log");
    // The key of a category holds no log, so one name has one log under an OS class.
    TakeName("category " + std::to_string(os), category_);
    catalogue_.Categories.push_back({category_, os, log});
  }
}

void CatalogueFile::BeginAlarm(const std::string& value) {
  BeginEntry(Entry::Alarm);
  if (category_.empty()) Fail("the alarm has no category above it");
  CheckText(value, RefusedInName, LongestText);
  TakeName("alarm", value);
  alarm_ = {};
  alarm_.Name = value;
  alarm_.Category = category_;
}

void CatalogueFile::SetComment(const std::string& value) {
  CheckText(value, RefusedInComment, LongestComment);
  alarm_.Comment = value;
}

void CatalogueFile::SetThreshold(const std::string& value) {
  const std::string separator = " in ";
  const std::size_t at = value.find(separator);
  if (at == value.npos) Fail("a threshold has the form COUNT in SECONDS");
  alarm_.ThresholdCount = Number(Trim(value.substr(0, at)), 2, 99999);
  alarm_.ThresholdTimeout = Number(Trim(value.substr(at + separator.size())), 2, 31536000);
}

void CatalogueFile::AddMatch(const std::string& value) {
  const auto parts = Parts(value, 4, 5);
  if (alarm_.Comment.empty()) Fail("the alarm has no comment above its first match");
  alarm_.Types = Types(parts[1]);
  alarm_.Source = parts[2] == "any" ? "" : parts[2];
  alarm_.EventId = parts[3] == "any" ? -1 : Number(parts[3], 0, 65535);
  alarm_.EventDescription = parts.size() == 5 ? parts[4] : "";
  CheckText(parts[2], RefusedInText, LongestCategory);
  CheckText(alarm_.EventDescription, RefusedInText, LongestText);
  for (const int os : OsClasses(parts[0])) AddAlarm(os);
}

void CatalogueFile::AddAlarm(int os) {
  alarm_.Os = os;
  const int log = catalogue_.LogOf(alarm_);
  if (log == 0) Fail("the category does not stand under OS class " + std::to_string(os));
  CheckEvent(log);
  TakeName("alarm " + std::to_string(os), alarm_.Name);
  if (!criteria_.insert(Criteria(alarm_)).second)
    Fail("another alarm of OS class " + std::to_string(os) + " has the same criteria");
  if (ExportLength(alarm_) >= LongestExportLine) Fail("the alarm is too long for the exchange file");
  catalogue_.Alarms.push_back(alarm_);
}

// Other sources use the same numbers for other events, so that one without the other tells of strangers.
void CatalogueFile::CheckEvent(int log) const {
  if ((alarm_.Types & (log == SecurityLog ? ~Audits : Audits)) != 0)
    Fail("the " + LogName(log) + " log has no events of this type");
  if (alarm_.Source.empty() != (alarm_.EventId == -1)) Fail("a source and an event ID belong together");
  if (log == SecurityLog && alarm_.EventId != -1 && !IsAudit(alarm_.Os, alarm_.EventId))
    Fail("OS class " + std::to_string(alarm_.Os) + " has no audit " + std::to_string(alarm_.EventId));
}

void CatalogueFile::BeginBundle(const std::string& value) {
  BeginEntry(Entry::Bundle);
  CheckText(value, RefusedInBundle, LongestText);
  TakeName("bundle", value);
  catalogue_.Bundles.push_back({value, {}});
}

void CatalogueFile::AddMember(const std::string& value) {
  const auto parts = Parts(value, 2, 2);
  auto& bundle = catalogue_.Bundles.back();
  for (const int os : OsClasses(parts[0])) {
    const auto& alarms = catalogue_.Alarms;
    const auto found = std::find_if(alarms.begin(), alarms.end(), [&](const CatalogueAlarm& alarm) {
      return alarm.Os == os && SameText(alarm.Name, parts[1]);
    });
    if (found == alarms.end()) Fail("OS class " + std::to_string(os) + " has no alarm '" + parts[1] + "'");
    TakeName("member of " + bundle.Name + " " + std::to_string(os), parts[1]);
    bundle.Members.push_back(static_cast<std::size_t>(found - alarms.begin()));
  }
}

void CatalogueFile::BeginNotification(const std::string& value) {
  BeginEntry(Entry::Notification);
  CheckText(value, RefusedInName, LongestTarget);
  TakeName("notification", value);
  catalogue_.Notifications.push_back({});
  catalogue_.Notifications.back().Name = value;
}

void CatalogueFile::SetEmail(const std::string& value) {
  CheckText(value, " ", LongestTarget);
  catalogue_.Notifications.back().EmailRecipient = value;
}

void CatalogueFile::SetPopup(const std::string& value) {
  CheckText(value, " ", LongestTarget);
  catalogue_.Notifications.back().NetworkName = value;
}

void CatalogueFile::SetSyslog(const std::string& value) {
  const auto parts = Parts(value, 3, 3);
  CheckText(parts[0], " ", LongestTarget);
  auto& notification = catalogue_.Notifications.back();
  notification.SyslogServer = parts[0];
  notification.SyslogUdpPort = Number(parts[1], 1, 65535);
  notification.SyslogPriority = Number(parts[2], 0, 191);
}

std::vector<std::string> CatalogueFile::Parts(const std::string& value, std::size_t least, std::size_t most) const {
  auto parts = Split(value, '|');
  if (parts.size() < least || parts.size() > most)
    Fail("the value has " + std::to_string(parts.size()) + " parts where " + std::to_string(least) +
         (most == least ? "" : " or " + std::to_string(most)) + " belong");
  for (const std::string& part : parts)
    if (part.empty()) Fail("a part of the value is empty");
  return parts;
}

std::vector<int> CatalogueFile::OsClasses(const std::string& text) const {
  std::vector<int> classes;
  for (const std::string& part : Split(text, ' '))
    if (!part.empty()) classes.push_back(Number(part, 1, OsClassCount));
  return classes;
}

int CatalogueFile::Types(const std::string& text) const {
  int mask = 0;
  for (const std::string& name : Split(text, ',')) {
    const auto found = std::find(TypeNames.begin(), TypeNames.end(), name);
    if (found == TypeNames.end()) Fail("'" + name + "' is no type of event");
    mask |= 1 << (found - TypeNames.begin());
  }
  return mask;
}

int CatalogueFile::Number(const std::string& text, int least, int most) const {
  const auto number = WholeNumber(text, least, most);
  if (!number) Fail("'" + text + "' is no number from " + std::to_string(least) + " to " + std::to_string(most));
  return *number;
}

void CatalogueFile::CheckText(const std::string& text, std::string_view refused, std::size_t longest) const {
  if (const std::size_t at = text.find_first_of(refused); at != text.npos)
    Fail(std::string("the character ") + text[at] + " is not allowed in '" + text + "'");
  if (text.size() > longest)
    Fail("the text has " + std::to_string(text.size()) + " characters, " + std::to_string(longest) + " are allowed");
}

void CatalogueFile::TakeName(const std::string& kind, const std::string& name) {
  if (!names_.insert(kind + "\n" + UpperCase(name)).second) Fail("'" + name + "' is used for the second time");
}

void CatalogueFile::Fail(const std::string& what, int line) const {
  throw InstallationError(source_ + ":" + std::to_string(line > 0 ? line : line_) + ": " + what);
}

}  // namespace corvane
