#include <filesystem>
#include <iostream>

#include "app/installation/InstallerCommand.h"

int main(int count, char** arguments) {
  // The console lies beside its installer.
  const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe").replace_filename("corvane");
  return corvane::InstallerCommand(CORVANE_DATA_DIR, program, std::cout, std::cerr)
      .Run({arguments + 1, arguments + count});
}
