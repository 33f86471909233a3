#pragma once

#include "adapters/lab/LabNetwork.h"
#include "platform/Ping.h"

namespace corvane {

/// Echo requests to the computers of the lab network. Settings: the network.
class LabPing : public Ping {
 public:
  explicit LabPing(LabNetwork& network);

  /// A computer that refuses access still answers; one that is off or blocks ping does not. Raises 440 for a name that
  /// stands nowhere.
  PingReply Send(const std::string& host) override;

 private:
  LabNetwork& network_;
};

}  // namespace corvane
