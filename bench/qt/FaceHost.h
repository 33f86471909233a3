#pragma once

#include "adapters/qt/QtHost.h"

namespace corvane::bench {

/// The face without the fixed pauses of the start.
class FaceHost : public qt::QtHost {
 public:
  FaceHost() : QtHost(qt::FormRegistry::Console(), {}) {}

  void Sleep(int) override {}
};

}  // namespace corvane::bench
