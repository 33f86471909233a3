#include "adapters/linux/JournalEventReader.h"

#include <systemd/sd-journal.h>

#include <cerrno>
#include <cstdlib>
#include <ctime>
#include <utility>
#include <vector>

#include "adapters/linux/JournalText.h"
#include "platform/Conversions.h"

namespace corvane {
namespace {

constexpr const char* Identifier = "SYSLOG_IDENTIFIER";

std::string_view View(const void* data, std::size_t size) { return {static_cast<const char*>(data), size}; }

// The text behind the name of a field, `NAME=text`.
std::string_view ValueOf(std::string_view field) { return field.substr(field.find('=') + 1); }

}  // namespace

void JournalEventReader::Release::operator()(sd_journal* journal) const { sd_journal_close(journal); }

JournalEventReader::JournalEventReader(System& machine, std::filesystem::path journal)
    : machine_(machine), path_(std::move(journal)) {}

bool JournalEventReader::Open(const std::string& computer, int log) {
  Close();
  if (log != ApplicationLog || !SameText(computer, machine_.ComputerName().value_or("")) || !OpenFiles()) return false;
  ::tzset();
  narrowed_ = !source_.empty() && AddMatches();
  if (sd_journal_seek_tail(journal_.get()) >= 0) return true;
  Close();
  return false;
}

bool JournalEventReader::OpenFiles() {
  std::error_code ignored;
  sd_journal* opened = nullptr;
  const char* files[] = {path_.c_str(), nullptr};
  const int result = path_.empty()                                   ? sd_journal_open(&opened, SD_JOURNAL_LOCAL_ONLY)
                     : std::filesystem::is_directory(path_, ignored) ? sd_journal_open_directory(&opened, files[0], 0)
                                                                     : sd_journal_open_files(&opened, files, 0);
  if (result < 0) return false;
  journal_.reset(opened);
  sd_journal_set_data_threshold(opened, (sizeof "MESSAGE=") - 1 + LongestMessage);
  // A journal of which this user may read nothing opens like an empty one; only its files take up no space.
  std::uint64_t bytes = 0;
  if (sd_journal_get_usage(opened, &bytes) < 0 || bytes == 0) Close();
  return journal_ != nullptr;
}

// The journal finds records by the exact bytes of a field, so all spellings that it holds of the source are looked up.
// False when its indexes are damaged; then every record has to be looked at.
bool JournalEventReader::AddMatches() {
  std::vector<std::string> spellings;
  const void* data = nullptr;
  std::size_t size = 0;
  int result = sd_journal_query_unique(journal_.get(), Identifier);
  if (result < 0) return false;
  while ((result = sd_journal_enumerate_unique(journal_.get(), &data, &size)) > 0)
    if (SameText(Trim(ValueOf(View(data, size))), source_)) spellings.emplace_back(View(data, size));
  // Without any match everything would match.
  if (spellings.empty()) spellings.push_back(std::string(Identifier) + "=" + source_);
  for (const std::string& spelling : spellings)
    if (result >= 0) result = sd_journal_add_match(journal_.get(), spelling.data(), spelling.size());
  if (result < 0) sd_journal_flush_matches(journal_.get());
  return result >= 0;
}

bool JournalEventReader::ReadNext(EventRecord& record) {
  const bool read = journal_ && Step() && Read(record);
  if (!read) Close();
  return read;
}

bool JournalEventReader::Step() {
  const int result = sd_journal_previous(journal_.get());
  if (result != 0) return result > 0;
  return std::exchange(narrowed_, false) && StepToOldest();
}

// Goes to the oldest record of all, unless it was the last one that was delivered.
bool JournalEventReader::StepToOldest() {
  char* cursor = nullptr;
  sd_journal_get_cursor(journal_.get(), &cursor);
  const std::unique_ptr<char, decltype(&std::free)> last(cursor, &std::free);
  sd_journal_flush_matches(journal_.get());
  if (sd_journal_seek_head(journal_.get()) < 0 || sd_journal_next(journal_.get()) <= 0) return false;
  return !last || sd_journal_test_cursor(journal_.get(), last.get()) == 0;
}

bool JournalEventReader::Read(EventRecord& record) {
  std::uint64_t time = 0;
  if (sd_journal_get_realtime_usec(journal_.get(), &time) < 0) return false;
  record.Time = EventTimeOf(time);
  // A value stands in memory only until the next one is asked for.
  std::string_view value;
  if (!Find(Identifier, value)) return false;
  record.Source = TextOfJournal(value);
  if (!Find("PRIORITY", value)) return false;
  record.Type = EventTypeOf(value);
  if (!Find("MESSAGE", value)) return false;
  record.Description = TextOfJournal(value.substr(0, LongestMessage));
  return true;
}

bool JournalEventReader::Find(const char* name, std::string_view& value) {
  const void* data = nullptr;
  std::size_t size = 0;
  const int result = sd_journal_get_data(journal_.get(), name, &data, &size);
  value = result >= 0 ? ValueOf(View(data, size)) : "";
  return result >= 0 || result == -ENOENT;
}

}  // namespace corvane
