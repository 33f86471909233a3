#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "adapters/lab/BackwardLines.h"
#include "adapters/lab/LabNetwork.h"
#include "platform/EventReader.h"

namespace corvane {

/// The Application log of the lab's local computer: the file `Application.log` in a folder, UTF-8, one record a line,
/// the newest last. Time, type, source and message are parted by tabs; within the message `\n` is a line break, `\t` a
/// tab and `\\` a backslash. Settings: the network; the folder.
class LabEventReader : public EventReader {
 public:
  LabEventReader(LabNetwork& network, std::filesystem::path folder);

  bool Open(const std::string& computer, int log) override;
  bool ReadNext(EventRecord& record) override;
  void Close() override { lines_.reset(); }

 private:
  LabNetwork& network_;
  std::filesystem::path folder_;
  std::unique_ptr<BackwardLines> lines_;
};

/// Takes a line of a log apart. False when it is no record.
bool ParseLabEvent(std::string_view line, EventRecord& record);

}  // namespace corvane
