#pragma once

#include "adapters/lab/LabHandles.h"
#include "adapters/lab/LabNetwork.h"
#include "platform/EventLogs.h"

namespace corvane {

/// The classic event logs of the lab network. Settings: the network.
class LabEventLogs : public EventLogs {
 public:
  explicit LabEventLogs(LabNetwork& network);

  EventLogHandle Open(const std::string& server, const std::string& log) override;
  bool GetOldestRecord(EventLogHandle log, std::uint32_t& number) override;
  bool GetNumberOfRecords(EventLogHandle log, std::uint32_t& count) override;
  void Close(EventLogHandle log) override;
  std::size_t OpenHandles() const { return handles_.Count(); }

 private:
  LabNetwork& network_;
  LabHandles<LabLog> handles_;
};

}  // namespace corvane
