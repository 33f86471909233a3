#include "adapters/lab/LabEventLogs.h"

#include "platform/RegistryStore.h"

namespace corvane {

LabEventLogs::LabEventLogs(LabNetwork& network) : network_(network) {}

EventLogHandle LabEventLogs::Open(const std::string& server, const std::string& log) {
  LabComputer computer;
  if (network_.Contact(server, computer) != registry::Ok) return 0;
  const LabLog* found = computer.FindLog(log);
  if (!found) found = computer.FindLog("Application");
  return found && !found->File.empty() ? handles_.Open(*found) : 0;
}

bool LabEventLogs::GetOldestRecord(EventLogHandle log, std::uint32_t& number) {
  const LabLog* open = handles_.Find(log);
  if (open) number = open->Oldest;
  return open != nullptr;
}

bool LabEventLogs::GetNumberOfRecords(EventLogHandle log, std::uint32_t& count) {
  const LabLog* open = handles_.Find(log);
  if (open) count = open->Count;
  return open != nullptr;
}

void LabEventLogs::Close(EventLogHandle log) { handles_.Close(log); }

}  // namespace corvane
