#include "core/Version.h"

namespace corvane {

std::string VersionText() {
  return std::to_string(CORVANE_VERSION_MAJOR) + "." + std::to_string(CORVANE_VERSION_MINOR) + "." +
         std::to_string(CORVANE_VERSION_REVISION);
}

}  // namespace corvane
