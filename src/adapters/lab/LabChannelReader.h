#pragma once

#include "adapters/lab/LabHandles.h"
#include "adapters/lab/LabNetwork.h"
#include "platform/ChannelReader.h"

namespace corvane {

/// The channels of the lab's computers of version 6 and above. Settings: the network.
class LabChannelReader : public ChannelReader {
 public:
  explicit LabChannelReader(LabNetwork& network);

  /// A channel that is switched off still has its configuration.
  ChannelHandle GetChannelConfigHandle(const std::string& computer, const std::string& log) override;
  ChannelHandle GetLogFileHandle(const std::string& computer, const std::string& log) override;
  int GetLogProperty(ChannelHandle log, int property, std::uint32_t& value) override;
  void CloseChannelConfigHandle(ChannelHandle handle) override;
  /// How many handles of both kinds are open.
  std::size_t OpenHandles() const { return handles_.Count(); }

 private:
  struct Channel {
    LabLog Log;
    bool IsFile = false;
  };

  ChannelHandle Open(const std::string& computer, const std::string& log, bool isFile);

  LabNetwork& network_;
  LabHandles<Channel> handles_;
};

}  // namespace corvane
