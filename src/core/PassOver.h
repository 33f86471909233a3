#pragma once

#include <utility>

#include "platform/RuntimeError.h"

namespace corvane {

/// Runs a statement whose failure is passed over: the routine goes on with the next one. True when it did not fail.
template <class Statement>
bool PassOver(Statement&& statement) {
  try {
    std::forward<Statement>(statement)();
    return true;
  } catch (const RuntimeError&) {
    return false;
  }
}

}  // namespace corvane
