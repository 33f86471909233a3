#pragma once

#include <cstdint>
#include <string>

namespace corvane {

/// A channel's configuration or log file; 0 is none.
using ChannelHandle = std::uint64_t;

/// Reads the logs of computers whose system has channels (EVTX files). Computers come without leading `\\`.
class ChannelReader {
 public:
  static constexpr int NumberOfRecords = 5;
  static constexpr int OldestRecord = 6;

  virtual ~ChannelReader() = default;

  virtual ChannelHandle GetChannelConfigHandle(const std::string& computer, const std::string& log) = 0;
  virtual ChannelHandle GetLogFileHandle(const std::string& computer, const std::string& log) = 0;
  /// Reads a property of a log file, one of the numbers above. Zero on failure.
  virtual int GetLogProperty(ChannelHandle log, int property, std::uint32_t& value) = 0;
  /// Closes either kind of handle.
  virtual void CloseChannelConfigHandle(ChannelHandle handle) = 0;
};

}  // namespace corvane
