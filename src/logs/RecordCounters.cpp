#include <limits>

#include "core/modMain.h"
#include "logs/LogInspection.h"
#include "platform/EventLogs.h"
#include "platform/NetX.h"
#include "platform/RuntimeError.h"

namespace corvane {
namespace {

constexpr int FirstVersionWithChannels = 6;

// Record numbers are taken as signed 32-bit numbers, as the rows hold them.
std::int32_t Signed(std::uint32_t number) { return static_cast<std::int32_t>(number); }

std::int32_t Checked(std::int64_t number) {
  if (number < std::numeric_limits<std::int32_t>::min() || number > std::numeric_limits<std::int32_t>::max())
    throw RuntimeError(errors::Overflow, "Overflow");
  return static_cast<std::int32_t>(number);
}

std::int32_t SumLessOne(std::int32_t a, std::int32_t b) {
  return Checked(std::int64_t{Checked(std::int64_t{a} + b)} - 1);
}

class OpenedLog {
 public:
  OpenedLog(EventLogs& logs, const std::string& server, const std::string& log)
      : logs_(logs), handle_(logs.Open(server, log)) {}
  ~OpenedLog() {
    if (handle_ != 0) logs_.Close(handle_);
  }
  OpenedLog(const OpenedLog&) = delete;
  OpenedLog& operator=(const OpenedLog&) = delete;

  bool Read(std::uint32_t& oldest, std::uint32_t& count) const {
    return handle_ != 0 && logs_.GetOldestRecord(handle_, oldest) && logs_.GetNumberOfRecords(handle_, count);
  }

 private:
  EventLogs& logs_;
  EventLogHandle handle_;
};

RecordCounters ClassicCounters(modMain& main, const std::string& computer, const std::string& log) {
  std::uint32_t oldest = 0, count = 0;
  const OpenedLog opened(main.Platform.EventLogs, "\\\\" + computer, log);
  if (!opened.Read(oldest, count)) return {};
  return {Signed(count), oldest <= 1 ? 1 : SumLessOne(Signed(oldest), Signed(count))};
}

RecordCounters ChannelCounters(ChannelReader& reader, const std::string& computer, const std::string& log) {
  const ChannelHandle channel = reader.GetChannelConfigHandle(computer, log);
  const ChannelHandle file = reader.GetLogFileHandle(computer, log);
  // Left as it always was: without a log file the channel's handle stays open.
  if (file == 0) return {};
  std::uint32_t oldest = 0, count = 0;
  const bool read = reader.GetLogProperty(file, ChannelReader::OldestRecord, oldest) != 0 &&
                    reader.GetLogProperty(file, ChannelReader::NumberOfRecords, count) != 0;
  reader.CloseChannelConfigHandle(file);
  reader.CloseChannelConfigHandle(channel);
  if (!read) return {};
  const std::int32_t first = oldest <= 1 ? 1 : Signed(oldest);
  return {SumLessOne(Signed(count), first), first};
}

}  // namespace

CountersResult ReadRecordCounters(modMain& main, const std::string& computer, const std::string& log,
                                  RecordCounters& counters) {
  counters = {};
  int major = 0, minor = 0;
  main.Platform.NetX.QueryOSVersion(computer, major, minor);
  if (major < FirstVersionWithChannels) {
    counters = ClassicCounters(main, computer, log);
    return CountersResult::Read;
  }
  if (!main.HasChannelApi) return CountersResult::NewerThanConsole;
  counters = ChannelCounters(*main.ChannelReader, StripBackslashes(computer), log);
  return CountersResult::Read;
}

std::string StripBackslashes(std::string_view text) {
  return std::string(text.starts_with("\\\\") ? text.substr(2) : text);
}

}  // namespace corvane
