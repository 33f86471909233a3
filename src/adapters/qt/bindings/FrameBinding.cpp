#include "adapters/qt/bindings/FrameBinding.h"

#include <QGroupBox>

#include "adapters/qt/Text.h"

namespace corvane::qt {

FrameBinding::FrameBinding(FormView& view, ui::Frame& control, QGroupBox* frame)
    : Binding(view, control, frame), control_(control), frame_(frame) {}

void FrameBinding::Update() {
  if (const QString caption = ToQt(control_.Caption); frame_->title() != caption) frame_->setTitle(caption);
}

}  // namespace corvane::qt
