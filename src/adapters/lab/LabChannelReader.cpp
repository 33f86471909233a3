#include "adapters/lab/LabChannelReader.h"

#include "platform/RegistryStore.h"

namespace corvane {

LabChannelReader::LabChannelReader(LabNetwork& network) : network_(network) {}

ChannelHandle LabChannelReader::Open(const std::string& computer, const std::string& log, bool isFile) {
  LabComputer found;
  if (network_.Contact(computer, found) != registry::Ok || found.Major < 6) return 0;
  const LabLog* channel = found.FindLog(log);
  if (!channel || (isFile && channel->File.empty())) return 0;
  return handles_.Open({*channel, isFile});
}

ChannelHandle LabChannelReader::GetChannelConfigHandle(const std::string& computer, const std::string& log) {
  return Open(computer, log, false);
}

ChannelHandle LabChannelReader::GetLogFileHandle(const std::string& computer, const std::string& log) {
  return Open(computer, log, true);
}

int LabChannelReader::GetLogProperty(ChannelHandle log, int property, std::uint32_t& value) {
  const Channel* channel = handles_.Find(log);
  if (!channel || !channel->IsFile || (property != NumberOfRecords && property != OldestRecord)) return 0;
  value = property == NumberOfRecords ? channel->Log.Count : channel->Log.Oldest;
  return 1;
}

void LabChannelReader::CloseChannelConfigHandle(ChannelHandle handle) { handles_.Close(handle); }

}  // namespace corvane
