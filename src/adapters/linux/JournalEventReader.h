#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "platform/EventReader.h"
#include "platform/System.h"

struct sd_journal;

namespace corvane {

/// The systemd journal of this machine as its Application log. A record's source is its syslog identifier, its type
/// follows from its priority. Settings: the system, for the name of the local computer; a journal file or a folder of
/// such files, the journal of the system when empty.
class JournalEventReader : public EventReader {
 public:
  /// Longer messages are cut to so many bytes: whoever may log could else fill the console's memory with one record.
  static constexpr std::size_t LongestMessage = 65536;

  explicit JournalEventReader(System& machine, std::filesystem::path journal = {});

  void NarrowTo(const std::string& source) override { source_ = source; }
  /// False as well when not one file of the journal can be read.
  bool Open(const std::string& computer, int log) override;
  bool ReadNext(EventRecord& record) override;
  void Close() override { journal_.reset(); }

 private:
  struct Release {
    void operator()(sd_journal* journal) const;
  };

  bool OpenFiles();
  bool AddMatches();
  bool Step();
  bool StepToOldest();
  bool Read(EventRecord& record);
  /// The value of a field, empty for one that the record lacks. False when the record cannot be read.
  bool Find(const char* name, std::string_view& value);

  System& machine_;
  std::filesystem::path path_;
  std::string source_;
  std::unique_ptr<sd_journal, Release> journal_;
  // Whether only records of the source are stepped to, with the oldest of all still to come.
  bool narrowed_ = false;
};

}  // namespace corvane
