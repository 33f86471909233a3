#pragma once

#include <QIconEngine>
#include <QString>

namespace corvane::qt {

/// Draws one SVG picture of the resources. Two of its colours stand for the line and the paper colour of the palette,
/// so that one drawing serves light and dark screens and selected rows.
class SvgIconEngine : public QIconEngine {
 public:
  explicit SvgIconEngine(QString key) : key_(std::move(key)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
  /// A pixmap of a size in device pixels.
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
  QIconEngine* clone() const override { return new SvgIconEngine(key_); }
  QString key() const override { return QStringLiteral("corvane"); }
  QString iconName() override { return key_; }

  /// Size that the picture was drawn for, in logical pixels.
  QSize NaturalSize() const;

 private:
  QByteArray Drawing(QIcon::Mode mode) const;

  QString key_;
};

}  // namespace corvane::qt
