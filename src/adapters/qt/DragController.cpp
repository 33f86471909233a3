#include "adapters/qt/DragController.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QMouseEvent>
#include <algorithm>

#include "adapters/qt/FormView.h"

namespace corvane::qt {

DragController::~DragController() { Cancel(); }

bool DragController::Cancel() {
  const bool dragging = dragging_;
  source_ = nullptr;
  SetDragging(false, false);
  return dragging;
}

bool DragController::Filter(ui::Control& source, QWidget& surface, QEvent& event) {
  switch (event.type()) {
    case QEvent::MouseButtonPress:
      return Press(source, surface, static_cast<const QMouseEvent&>(event));
    case QEvent::MouseMove:
      return source_ == &source && Move(static_cast<const QMouseEvent&>(event));
    case QEvent::MouseButtonRelease:
      return source_ == &source && Release(static_cast<const QMouseEvent&>(event));
    default:
      return false;
  }
}

// The press itself goes on to the widget: it selects what is going to be dragged.
bool DragController::Press(ui::Control& source, QWidget& surface, const QMouseEvent& event) {
  Cancel();
  if (source.DragTargets.empty() || event.button() != Qt::LeftButton) return false;
  const auto* list = qobject_cast<QAbstractItemView*>(surface.parentWidget());
  if (list != nullptr && !list->indexAt(event.position().toPoint()).isValid()) return false;
  source_ = &source;
  start_ = event.globalPosition().toPoint();
  return false;
}

// Moves short of a drag are swallowed too: a list would take them for the selection of several rows.
bool DragController::Move(const QMouseEvent& event) {
  const QPoint place = event.globalPosition().toPoint();
  if (!event.buttons().testFlag(Qt::LeftButton)) {
    Cancel();
    return false;
  }
  if (dragging_ || (place - start_).manhattanLength() >= QApplication::startDragDistance())
    SetDragging(true, TargetAt(place) != nullptr);
  return true;
}

bool DragController::Release(const QMouseEvent& event) {
  ui::Control* target = dragging_ ? TargetAt(event.globalPosition().toPoint()) : nullptr;
  const bool dragged = Cancel();
  if (target != nullptr) view_.Postpone(target->DragDrop);
  return dragged;
}

void DragController::SetDragging(bool dragging, bool allowed) {
  if (dragging == dragging_ && allowed == allowed_) return;
  const QCursor cursor(allowed ? Qt::DragMoveCursor : Qt::ForbiddenCursor);
  if (!dragging)
    QApplication::restoreOverrideCursor();
  else if (dragging_)
    QApplication::changeOverrideCursor(cursor);
  else
    QApplication::setOverrideCursor(cursor);
  dragging_ = dragging;
  allowed_ = allowed;
}

ui::Control* DragController::TargetAt(const QPoint& screen) const {
  ui::Control* target = view_.ControlAt(screen);
  const auto& targets = source_->DragTargets;
  return std::find(targets.begin(), targets.end(), target) != targets.end() ? target : nullptr;
}

}  // namespace corvane::qt
