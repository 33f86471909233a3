#include "support/ServiceLog.h"

#include <algorithm>
#include <fstream>
#include <string>
#include <vector>

namespace corvane::bench {
namespace {

constexpr std::size_t Block = 262'144;

}  // namespace

void WriteServiceLog(const std::filesystem::path& file, int records, int every) {
  std::ofstream log(file, std::ios::binary);
  for (int i = 1; i <= records; ++i) {
    const char* source = i % every == 0 ? "Corvane Service" : "Application Monitor";
    log << "Mon Nov " << 10 + i / 86'400 % 20 << " " << 10 + i / 3600 % 14 << ":" << 10 + i / 60 % 50 << ":"
        << 10 + i % 50 << " 2026\tInformation\t" << source << "\tThe work number " << i
        << " has been done.\\nIt took 17 milliseconds and needed no second attempt.\n";
  }
}

std::size_t CountLines(const std::filesystem::path& file) {
  std::ifstream log(file, std::ios::binary);
  std::vector<char> bytes(Block);
  std::size_t lines = 0;
  while (log.read(bytes.data(), static_cast<std::streamsize>(Block)) || log.gcount() > 0)
    lines += static_cast<std::size_t>(std::count(bytes.begin(), bytes.begin() + log.gcount(), '\n'));
  return lines;
}

}  // namespace corvane::bench
