#include "adapters/qt/bindings/ProgressBinding.h"

#include <QProgressBar>

namespace corvane::qt {

ProgressBinding::ProgressBinding(FormView& view, ui::ProgressBar& control, QProgressBar* bar)
    : Binding(view, control, bar), control_(control), bar_(bar) {
  bar->setTextVisible(false);
}

void ProgressBinding::Update() {
  if (bar_->minimum() != control_.Min || bar_->maximum() != control_.Max) bar_->setRange(control_.Min, control_.Max);
  if (bar_->value() != control_.Value) bar_->setValue(control_.Value);
}

}  // namespace corvane::qt
