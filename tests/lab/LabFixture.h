#pragma once

#include <gtest/gtest.h>

#include "adapters/lab/LabNetwork.h"
#include "support/ErrorOf.h"
#include "support/TempFolder.h"

namespace corvane::test {

/// The lab of `lab.ini`: eight computers whose clock stands still until something waits.
class LabFixture : public testing::Test {
 protected:
  LabTiming Timing() {
    LabTiming timing;
    timing.Sleep = [this](int milliseconds) { Clock += milliseconds; };
    timing.Now = [this] { return Clock; };
    return timing;
  }

  TempFolder Folder;
  std::filesystem::path File = Folder.Path() / "lab.ini";
  bool Copied = std::filesystem::copy_file(CORVANE_SOURCE_DIR "/tests/lab/lab.ini", File);
  std::string Text = Folder.Read("lab.ini");
  std::int64_t Clock = 1000000;
  LabNetwork Network{File, Folder.Path() / "own.reg", Timing()};
};

}  // namespace corvane::test
