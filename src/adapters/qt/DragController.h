#pragma once

#include <QPoint>

#include "platform/ui/Control.h"

class QEvent;
class QMouseEvent;
class QWidget;

namespace corvane::qt {

class FormView;

/// Dragging between the controls of one form: press on something, move, let go over a control that the source names
/// among its targets. The mouse stays with the source meanwhile, so no loop of the toolkit takes part.
class DragController {
 public:
  explicit DragController(FormView& view) : view_(view) {}
  ~DragController();
  DragController(const DragController&) = delete;
  DragController& operator=(const DragController&) = delete;

  /// Sees the events of a source's surface first; true swallows one.
  bool Filter(ui::Control& source, QWidget& surface, QEvent& event);
  /// Gives up a drag; false when there is none.
  bool Cancel();

 private:
  bool Press(ui::Control& source, QWidget& surface, const QMouseEvent& event);
  bool Move(const QMouseEvent& event);
  bool Release(const QMouseEvent& event);
  void SetDragging(bool dragging, bool allowed);
  ui::Control* TargetAt(const QPoint& screen) const;

  FormView& view_;
  ui::Control* source_ = nullptr;
  QPoint start_;
  bool dragging_ = false;
  bool allowed_ = false;
};

}  // namespace corvane::qt
