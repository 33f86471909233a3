#include "adapters/qt/bindings/Binding.h"

#include <QAbstractScrollArea>
#include <QFocusEvent>
#include <QGuiApplication>
#include <QWidget>

#include "adapters/qt/DragController.h"
#include "adapters/qt/Text.h"

namespace corvane::qt {

Binding::Binding(FormView& view, ui::Control& control, QWidget* widget)
    : view_(view), control_(control), widget_(nullptr) {
  if (widget != nullptr) SetWidget(widget);
}

void Binding::SetWidget(QWidget* widget) {
  widget_ = widget;
  cursor_ = Surface()->cursor();
  widget->installEventFilter(this);
  if (Surface() != widget) Surface()->installEventFilter(this);
}

QWidget* Binding::Surface() const {
  auto* area = qobject_cast<QAbstractScrollArea*>(widget_);
  return area != nullptr ? area->viewport() : widget_;
}

void Binding::Flush() {
  if (widget_ != nullptr) {
    if (widget_->isHidden() == control_.Visible) widget_->setVisible(control_.Visible);
    if (widget_->isEnabledTo(widget_->parentWidget()) != control_.Enabled) widget_->setEnabled(control_.Enabled);
    if (const QString toolTip = PlainToolTip(control_.ToolTip); toolTip != toolTip_)
      widget_->setToolTip(toolTip_ = toolTip);
    UpdatePointer();
  }
  Update();
}

// Widgets with a pointer of their own, such as text boxes, would keep it under an hourglass of the form.
void Binding::UpdatePointer() {
  ui::Pointer pointer = control_.MousePointer;
  if (pointer == ui::Pointer::Default) pointer = control_.Parent().MousePointer;
  if (pointer == pointer_) return;
  pointer_ = pointer;
  Surface()->setCursor(pointer == ui::Pointer::Hourglass ? QCursor(Qt::WaitCursor) : cursor_);
}

bool Binding::eventFilter(QObject* watched, QEvent* event) {
  if (!view_.IsOpen()) return false;
  if (event->type() == QEvent::FocusIn && watched == widget_) Focused(*event);
  if (event->type() == QEvent::Enter && watched == Surface() && QGuiApplication::mouseButtons() == Qt::NoButton)
    Postpone(control_.MouseMove);
  if (watched == Surface() && view_.Drag().Filter(control_, *Surface(), *event)) return true;
  return Filter(*event);
}

// A window that comes to the front again, or a menu that closes, gives its focus back: nothing got it anew.
void Binding::Focused(const QEvent& event) {
  const Qt::FocusReason reason = static_cast<const QFocusEvent&>(event).reason();
  if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason && reason != Qt::MenuBarFocusReason)
    Postpone(control_.GotFocus);
}

}  // namespace corvane::qt
