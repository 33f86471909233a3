#pragma once

#include <QCursor>
#include <QObject>
#include <memory>

#include "adapters/qt/FormView.h"
#include "platform/ui/Control.h"

class QWidget;

namespace corvane::qt {

/// Ties one control to its widget. The kinds derive from it: they write what differs, and fire what the user does.
class Binding : public QObject {
 public:
  /// Makes the binding of a control's kind. `widget` is null for kinds that build their own.
  static std::unique_ptr<Binding> Make(FormView& view, ui::Control& control, QWidget* widget);

  Binding(FormView& view, ui::Control& control, QWidget* widget);

  const ui::Control& Control() const { return control_; }
  /// Null for a control that is no widget.
  QWidget* Widget() const { return widget_; }
  void Flush();

 protected:
  /// Writes the fields of the kind to the widget, as far as they differ.
  virtual void Update() = 0;
  /// Sees the events of the widget and of its surface before they do. True swallows one.
  virtual bool Filter(QEvent&) { return false; }
  bool eventFilter(QObject* watched, QEvent* event) override;

  void SetWidget(QWidget* widget);
  /// The part of the widget that takes the mouse.
  QWidget* Surface() const;
  FormView& View() const { return view_; }
  /// True when a change of the widget is the user's, and the control is there to take it.
  bool IsUsers() const { return view_.IsOpen() && !view_.IsWriting(); }
  void Fire(const ui::Handler& handler) { view_.Fire(handler); }
  void Postpone(const ui::Handler& handler) { view_.Postpone(handler); }

 private:
  void UpdatePointer();
  void Focused(const QEvent& event);

  FormView& view_;
  ui::Control& control_;
  QWidget* widget_;
  QString toolTip_;
  ui::Pointer pointer_ = ui::Pointer::Default;
  QCursor cursor_;
};

}  // namespace corvane::qt
