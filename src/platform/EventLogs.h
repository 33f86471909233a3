#pragma once

#include <cstdint>
#include <string>

namespace corvane {

/// An open event log; 0 is none.
using EventLogHandle = std::uint64_t;

/// The classic event-log calls, also across the network.
class EventLogs {
 public:
  virtual ~EventLogs() = default;

  /// Opens a log by name on a server (with or without its leading `\\`). 0 on failure. A log name that the server does
  /// not know opens its Application log, as the real call does.
  virtual EventLogHandle Open(const std::string& server, const std::string& log) = 0;
  virtual bool GetOldestRecord(EventLogHandle log, std::uint32_t& number) = 0;
  virtual bool GetNumberOfRecords(EventLogHandle log, std::uint32_t& count) = 0;
  virtual void Close(EventLogHandle log) = 0;
};

}  // namespace corvane
