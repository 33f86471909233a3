#pragma once

#include <string>

#include "adapters/qt/bindings/Binding.h"
#include "platform/ui/SimpleControls.h"

class QLineEdit;
class QPlainTextEdit;

namespace corvane::qt {

/// The ground on which a box is drawn that a button will act on.
void ShowHighlight(QWidget& widget, bool highlighted);

/// A text box of one line.
class LineBinding : public Binding {
 public:
  LineBinding(FormView& view, ui::TextBox& control, QLineEdit* line);

 protected:
  void Update() override;
  bool Filter(QEvent& event) override;

 private:
  void Changed(const QString& text);
  bool Refuses(const QString& typed) const;
  void NoteCaret();
  void ShowText(const QString& text);

  ui::TextBox& control_;
  QLineEdit* line_;
  int shownCaret_ = 0;
};

/// A text box of several lines.
class TextBinding : public Binding {
 public:
  TextBinding(FormView& view, ui::TextBox& control, QPlainTextEdit* text);

 protected:
  void Update() override;
  bool Filter(QEvent& event) override;

 private:
  void Changed();
  void TakeOutRefused();
  bool IsRefused(int key) const;
  void NoteCaret();
  void MoveCaret();

  ui::TextBox& control_;
  QPlainTextEdit* text_;
  /// What the widget shows, as the control has it: the widget keeps line breaks in its own way.
  std::string shown_;
  int shownCaret_ = 0;
};

}  // namespace corvane::qt
