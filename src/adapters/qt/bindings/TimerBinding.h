#pragma once

#include <QTimer>

#include "adapters/qt/bindings/Binding.h"
#include "platform/ui/SimpleControls.h"

namespace corvane::qt {

/// A timer, which runs while its form is shown. Its ticks never overlap: the next is counted from the end of the last.
class TimerBinding : public Binding {
 public:
  TimerBinding(FormView& view, ui::Timer& control);

 protected:
  void Update() override;

 private:
  void Tick();

  ui::Timer& control_;
  QTimer timer_;
  bool ticking_ = false;
};

}  // namespace corvane::qt
