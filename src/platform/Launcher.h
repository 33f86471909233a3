#pragma once

#include <string>

namespace corvane {

/// Starts other programs.
class Launcher {
 public:
  virtual ~Launcher() = default;

  /// Runs a command line, shown normally, and does not wait for it. Raises 53 when the program is not found. The
  /// command line never passes through a shell.
  virtual void Run(const std::string& commandLine) = 0;
};

/// Tells whether another console runs on this installation.
class SingleInstance {
 public:
  virtual ~SingleInstance() = default;

  /// Takes the installation for this process. False when another process holds it.
  virtual bool Acquire() = 0;
};

}  // namespace corvane
