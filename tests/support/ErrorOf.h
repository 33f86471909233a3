#pragma once

#include <functional>
#include <string>

#include "platform/RuntimeError.h"

namespace corvane::test {

/// The number of the error that the work raises, 0 for none, and its text.
inline int ErrorOf(const std::function<void()>& work, std::string* description = nullptr) {
  try {
    work();
  } catch (const RuntimeError& error) {
    if (description) *description = error.Description;
    return error.Number;
  }
  return 0;
}

}  // namespace corvane::test
