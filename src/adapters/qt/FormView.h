#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "adapters/qt/FormRegistry.h"
#include "platform/ui/Form.h"

class QMenu;
class QWidget;

namespace corvane::qt {

class Binding;
class Dispatcher;
class DragController;
class SplitterShares;

/// The window of one shown form: the widgets of its placement, each tied to the control of its name.
class FormView : public QObject {
 public:
  /// Builds the window, not shown yet.
  FormView(ui::Form& form, const FormEntry& entry, Dispatcher& dispatcher);
  ~FormView() override;

  /// The form; only while the view is open.
  ui::Form& Form() const { return form_; }
  bool Shows(const ui::Form& form) const { return open_ && &form_ == &form; }
  bool IsOpen() const { return open_; }
  QWidget& Window() const { return *window_; }

  /// Shows the window above its opener, which may be null; a modal one blocks it.
  void Show(QWidget* opener, bool modal);
  /// Lets go of the form, which may be gone already, and takes the window away.
  void Close();
  /// Brings the widgets up to date with the form's controls.
  void Flush();

  /// Called when the view closes.
  std::function<void()> Closed;

  /// The binding of a control of this form; null when it has none.
  Binding* Find(const ui::Control& control) const;
  /// The control at a point of the screen; null when there is none.
  ui::Control* ControlAt(const QPoint& screen) const;
  DragController& Drag() { return *drag_; }

  void Fire(ui::Handler handler);
  void Postpone(ui::Handler handler);
  bool IsWriting() const;
  /// No handler may run now: the program waits, or has failed.
  bool IsHeld() const;

  /// What is wrong with a form's placement, one line each: controls without a widget, and widgets that are named like a
  /// control and have none.
  std::vector<std::string> Mismatches() const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BuildWindow(const FormEntry& entry);
  void BindControls();
  void SetTabOrder();
  void SetBuddies();
  void SetFirstFocus();
  void FlushFrame();
  bool KeyPressed(int key);
  bool PressButton(ui::CommandButton* button);
  QWidget* WidgetFor(const ui::Control& control) const;
  std::vector<QWidget*> FocusChain() const;

  ui::Form& form_;
  Dispatcher& dispatcher_;
  std::unique_ptr<QWidget> window_;
  QWidget* content_ = nullptr;
  std::vector<std::unique_ptr<Binding>> bindings_;
  std::unique_ptr<DragController> drag_;
  std::unique_ptr<SplitterShares> shares_;
  bool open_ = true;
};

/// Name of the widget of a control: that of the control, with its place behind it where it stands in an array.
std::string WidgetName(const ui::Control& control);

}  // namespace corvane::qt
