#pragma once

#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace corvane::qt {

/// What the style draws itself. The two general functions return false for what they leave to the style below.
class StylePainter {
 public:
  StylePainter(const QStyleOption& option, QPainter& painter) : option_(option), painter_(painter) {}

  bool Primitive(QStyle::PrimitiveElement element);
  bool Control(QStyle::ControlElement element);
  void ComboBox(const QStyleOptionComboBox& box, const QRect& arrow);
  void GroupBox(const QStyleOptionGroupBox& group, const QRect& frame, const QRect& label);
  void ScrollBar(const QStyleOptionSlider& bar, const QRect& handle);

  /// A button that Enter presses and that can be pressed: drawn in the accent colour.
  static bool IsAccented(const QStyleOptionButton& button);

 private:
  void Frame(const QColor& line);
  void Button();
  void Field();
  void Branch();
  void Header();
  void Tab();
  void ProgressGroove();
  void ProgressContents();
  void Box(const QRectF& rect, const QColor& fill, const QColor& line);
  void Chevron(const QRect& place, bool down);
  void Line(const QPoint& from, const QPoint& to);

  bool Has(QStyle::StateFlag flag) const { return option_.state.testFlag(flag); }
  QColor LineColour() const { return option_.palette.mid().color(); }
  QColor Accent() const { return option_.palette.link().color(); }

  const QStyleOption& option_;
  QPainter& painter_;
};

}  // namespace corvane::qt
