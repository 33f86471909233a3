#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "support/ErrorOf.h"

namespace corvane::fuzz {

/// What a target does with one input; each target has its own.
void Try(const std::string& input);

/// Ends the run with a report of the input where something does not hold that must.
inline void Require(bool holds) {
  if (!holds) std::abort();
}

/// The work ends well or with one of these errors.
inline void RequireErrors(std::initializer_list<int> known, const std::function<void()>& work) {
  const int error = test::ErrorOf(work);
  Require(error == 0 || std::find(known.begin(), known.end(), error) != known.end());
}

}  // namespace corvane::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  corvane::fuzz::Try(std::string(data, data + size));
  return 0;
}
