#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace corvane::fuzz {

/// What a target does with one input; each target has its own.
void Try(const std::string& input);

/// Ends the run with a report of the input where something does not hold that must.
inline void Require(bool holds) {
  if (!holds) std::abort();
}

}  // namespace corvane::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  corvane::fuzz::Try(std::string(data, data + size));
  return 0;
}
