#include "adapters/qt/look/SvgIconEngine.h"

#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

#include "adapters/qt/look/Icons.h"

namespace corvane::qt {
namespace {

// The colours that all drawings use for their lines and for their paper.
constexpr char LineColour[] = "#44546a";
constexpr char PaperColour[] = "#f6f8fb";

constexpr char LineOnDark[] = "#c3cedb";
constexpr char PaperOnDark[] = "#39434f";
constexpr double DisabledOpacity = 0.35;

QString CacheKey(const QString& key, const QSize& size, QIcon::Mode mode) {
  return QStringLiteral("corvane/%1/%2x%3/%4/%5")
      .arg(key)
      .arg(size.width())
      .arg(size.height())
      .arg(static_cast<int>(mode))
      .arg(QGuiApplication::palette().cacheKey());
}

}  // namespace

QByteArray SvgIconEngine::Drawing(QIcon::Mode mode) const {
  QFile file(":/corvane/icons/" + key_ + ".svg");
  if (!file.open(QIODevice::ReadOnly)) return {};
  QByteArray drawing = file.readAll();
  const QColor highlighted = QGuiApplication::palette().highlightedText().color();
  const bool selectedOnDark = mode == QIcon::Selected && highlighted.lightness() > 128;
  if (icons::IsDark() || selectedOnDark) drawing.replace(LineColour, LineOnDark).replace(PaperColour, PaperOnDark);
  return drawing;
}

void SvgIconEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) {
  const double density = painter->device()->devicePixelRatioF();
  QPixmap picture = pixmap((QSizeF(rect.size()) * density).toSize(), mode, state);
  picture.setDevicePixelRatio(density);
  painter->drawPixmap(rect.topLeft(), picture);
}

QPixmap SvgIconEngine::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) {
  const QString cacheKey = CacheKey(key_, size, mode);
  QPixmap picture;
  if (QPixmapCache::find(cacheKey, &picture)) return picture;
  picture = QPixmap(size);
  picture.fill(Qt::transparent);
  QSvgRenderer renderer(Drawing(mode));
  renderer.setAspectRatioMode(Qt::KeepAspectRatio);
  QPainter painter(&picture);
  if (mode == QIcon::Disabled) painter.setOpacity(DisabledOpacity);
  if (renderer.isValid()) renderer.render(&painter);
  painter.end();
  QPixmapCache::insert(cacheKey, picture);
  return picture;
}

QSize SvgIconEngine::NaturalSize() const { return QSvgRenderer(Drawing(QIcon::Normal)).defaultSize(); }

}  // namespace corvane::qt
