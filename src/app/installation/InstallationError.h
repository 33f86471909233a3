#pragma once

#include <stdexcept>

namespace corvane {

/// Why an installation cannot be laid out, in words for the person who runs the installer.
class InstallationError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace corvane
