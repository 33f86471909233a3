#include <iostream>

#include "app/installation/InstallerCommand.h"

int main(int count, char** arguments) {
  return corvane::InstallerCommand(CORVANE_DATA_DIR, std::cout, std::cerr).Run({arguments + 1, arguments + count});
}
