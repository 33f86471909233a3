#include "support/PeakMemory.h"

#include <cstdio>
#include <fstream>
#include <memory>

#include "support/BenchInstallation.h"
#include "support/RatioReporter.h"

namespace corvane::bench {
namespace {

constexpr double Kilobyte = 1024;
constexpr double Limit = 120e6;

double PeakOfNewProcess(const std::filesystem::path& installation) {
  const std::string command =
      std::filesystem::read_symlink("/proc/self/exe").string() + " " + PeakMemoryOption + " " + installation.string();
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> output(::popen(command.c_str(), "r"), &::pclose);
  long kilobytes = 0;
  if (!output || std::fscanf(output.get(), "%ld", &kilobytes) != 1) return 0;
  return Kilobyte * static_cast<double>(kilobytes);
}

}  // namespace

void PrintPeakMemory() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);)
    if (line.starts_with("VmHWM:")) std::puts(line.substr(6).c_str());
}

void MeasurePeakMemory(benchmark::State& state, int logs, double allowed) {
  const BenchInstallation installation(logs);
  double peak = 0;
  for (auto _ : state) peak = PeakOfNewProcess(installation.Folder());
  if (peak == 0) state.SkipWithError("the console did not come up");
  Report(state, {peak, Limit, allowed, true}, "limit");
}

}  // namespace corvane::bench
