#pragma once

#include <filesystem>
#include <memory>

#include "platform/Platform.h"

namespace corvane {

/// The ports of one installation, as its platform.ini chooses them: the lab network or this machine. Needs the files of
/// the installation; raises what reading the lab network raises.
class InstalledPlatform {
 public:
  InstalledPlatform(const std::filesystem::path& folder, ui::UiHost& host);
  ~InstalledPlatform();

  Platform& Ports() { return *platform_; }

 private:
  struct Adapters;
  std::unique_ptr<Adapters> adapters_;
  std::unique_ptr<Platform> platform_;
};

}  // namespace corvane
