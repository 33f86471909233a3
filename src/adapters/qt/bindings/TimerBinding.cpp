#include "adapters/qt/bindings/TimerBinding.h"

namespace corvane::qt {

TimerBinding::TimerBinding(FormView& view, ui::Timer& control) : Binding(view, control, nullptr), control_(control) {
  timer_.setSingleShot(true);
  connect(&timer_, &QTimer::timeout, this, [this] { Tick(); });
}

void TimerBinding::Update() {
  const bool runs = control_.Enabled && control_.Interval > 0;
  if (ticking_ || (runs == timer_.isActive() && (!runs || timer_.interval() == control_.Interval))) return;
  if (runs)
    timer_.start(control_.Interval);
  else
    timer_.stop();
}

// The program may be waiting without serving events; the tick is then due again at the next interval.
void TimerBinding::Tick() {
  if (!View().IsOpen()) return;
  ticking_ = true;
  Fire(control_.Tick);
  ticking_ = false;
  if (View().IsOpen()) Update();
}

}  // namespace corvane::qt
