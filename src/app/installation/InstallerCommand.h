#pragma once

#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

#include "app/installation/Installation.h"

namespace corvane {

/// The command line of the installer.
class InstallerCommand {
 public:
  /// `data` is where the shipped files lie unless the command line says otherwise.
  InstallerCommand(std::filesystem::path data, std::filesystem::path program, std::ostream& out, std::ostream& errors);

  /// Does what the arguments, without the program's name, ask for. 0 when it was done, 1 when it could not be done, 2
  /// when the arguments are not understood.
  int Run(const std::vector<std::string>& arguments);

 private:
  void Perform();
  bool Read(const std::vector<std::string>& arguments);
  bool ReadOption(const std::string& argument);
  bool Refuse(const std::string& why);

  std::filesystem::path data_;
  std::filesystem::path program_;
  std::ostream& out_;
  std::ostream& errors_;
  std::filesystem::path folder_, update_;
  bool lab_ = false, firstRun_ = false, help_ = false;
};

}  // namespace corvane
