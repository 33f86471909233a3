#pragma once

#include <QProxyStyle>

namespace corvane::qt {

/// Fusion, calmer and roomier: flat headers, buttons and tabs, high rows, thin scroll bars. It takes every colour from
/// the palette: `Mid` for lines, `Link` for the accent, `BrightText` for what stands on the accent.
class Style : public QProxyStyle {
 public:
  Style();

  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* returned) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                         const QWidget* widget) const override;
  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                       const QWidget* widget) const override;
  QRect subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override;
  /// The signs of message boxes are the program's own.
  QIcon standardIcon(StandardPixmap sign, const QStyleOption* option, const QWidget* widget) const override;
};

}  // namespace corvane::qt
