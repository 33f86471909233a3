#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "adapters/settings/RegistryText.h"

// Whatever is read as a registry is written as one that reads the same. The first line is given, so that the rest is
// met.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace corvane::settings;
  const std::string text = "Corvane Registry Version 1.00\n" + std::string(reinterpret_cast<const char*>(data), size);
  RegistryKey top;
  if (!ParseRegistry(text, top)) return 0;
  const std::string written = FormatRegistry(top);
  RegistryKey again;
  if (!ParseRegistry(written, again) || FormatRegistry(again) != written) std::abort();
  return 0;
}
