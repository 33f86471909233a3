#include "adapters/settings/RegistryText.h"
#include "fuzz/Fuzz.h"

// Whatever is read as a registry is written as one that reads the same. The first line is given, so that the rest is
// met.
void corvane::fuzz::Try(const std::string& input) {
  settings::RegistryKey top, again;
  if (!settings::ParseRegistry("Corvane Registry Version 1.00\n" + input, top)) return;
  const std::string written = FormatRegistry(top);
  Require(settings::ParseRegistry(written, again) && FormatRegistry(again) == written);
}
