#include "adapters/lab/LabEventReader.h"

#include "platform/Conversions.h"
#include "platform/RegistryStore.h"

namespace corvane {
namespace {

bool CutField(std::string_view& line, std::string& field) {
  const std::size_t tab = line.find('\t');
  if (tab == line.npos) return false;
  field.assign(line.substr(0, tab));
  line.remove_prefix(tab + 1);
  return true;
}

// What a character behind a backslash stands for; null where there is no such escape.
const char* Unescaped(char letter) {
  switch (letter) {
    case 'n':
      return "\r\n";
    case 't':
      return "\t";
    case '\\':
      return "\\";
    default:
      return nullptr;
  }
}

bool UnescapeMessage(std::string_view escaped, std::string& message) {
  message.clear();
  if (escaped.find('\t') != escaped.npos) return false;
  for (;;) {
    const std::size_t backslash = escaped.find('\\');
    message.append(escaped.substr(0, backslash));
    if (backslash == escaped.npos) return true;
    const char* meant = backslash + 1 < escaped.size() ? Unescaped(escaped[backslash + 1]) : nullptr;
    if (!meant) return false;
    message += meant;
    escaped.remove_prefix(backslash + 2);
  }
}

}  // namespace

LabEventReader::LabEventReader(LabNetwork& network, std::filesystem::path folder)
    : network_(network), folder_(std::move(folder)) {}

bool LabEventReader::Open(const std::string& computer, int log) {
  Close();
  LabComputer found;
  if (log != ApplicationLog || network_.Contact(computer, found) != registry::Ok) return false;
  if (!SameText(found.Name, network_.Model()->LocalComputer)) return false;
  lines_ = std::make_unique<BackwardLines>(folder_ / "Application.log");
  if (!lines_->IsOpen()) Close();
  return lines_ != nullptr;
}

bool LabEventReader::ReadNext(EventRecord& record) {
  std::string_view line;
  const bool read = lines_ && lines_->Previous(line) && ParseLabEvent(line, record);
  if (!read) Close();
  return read;
}

bool ParseLabEvent(std::string_view line, EventRecord& record) {
  // An editor may have ended the lines its own way.
  if (line.ends_with('\r')) line.remove_suffix(1);
  return CutField(line, record.Time) && CutField(line, record.Type) && CutField(line, record.Source) &&
         UnescapeMessage(line, record.Description);
}

}  // namespace corvane
