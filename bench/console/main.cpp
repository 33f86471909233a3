#include "support/BenchConsole.h"
#include "support/IdleHost.h"
#include "support/RunBenchmarks.h"

int main(int count, char** arguments) {
  using namespace corvane::bench;
  return RunBenchmarks(count, arguments, [](const std::filesystem::path& installation) {
    IdleHost host;
    BenchConsole(installation, host).App.Main();
  });
}
