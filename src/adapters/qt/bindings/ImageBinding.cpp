#include "adapters/qt/bindings/ImageBinding.h"

#include <QLabel>
#include <QMouseEvent>

#include "adapters/qt/look/Icons.h"

namespace corvane::qt {
namespace {

int ShiftState(Qt::KeyboardModifiers keys) {
  return (keys.testFlag(Qt::ShiftModifier) ? 1 : 0) + (keys.testFlag(Qt::ControlModifier) ? 2 : 0) +
         (keys.testFlag(Qt::AltModifier) ? 4 : 0);
}

}  // namespace

ImageBinding::ImageBinding(FormView& view, ui::Image& control, QLabel* label)
    : Binding(view, control, label), control_(control), label_(label) {}

void ImageBinding::Update() {
  if (control_.Picture == shown_) return;
  shown_ = control_.Picture;
  label_->setPixmap(icons::Picture(shown_, label_->minimumSize(), label_->devicePixelRatioF()));
}

bool ImageBinding::Filter(QEvent& event) {
  if (event.type() != QEvent::MouseButtonRelease || !control_.Click) return false;
  const auto& mouse = static_cast<const QMouseEvent&>(event);
  if (mouse.button() != Qt::LeftButton || !label_->rect().contains(mouse.position().toPoint())) return false;
  Postpone([click = control_.Click, shift = ShiftState(mouse.modifiers())] { click(shift); });
  return true;
}

}  // namespace corvane::qt
