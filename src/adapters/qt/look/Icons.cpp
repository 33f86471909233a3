#include "adapters/qt/look/Icons.h"

#include <QFile>
#include <QGuiApplication>
#include <QHash>
#include <QPalette>

#include "adapters/qt/Text.h"
#include "adapters/qt/look/SvgIconEngine.h"

namespace corvane::qt::icons {

QIcon Get(const std::string& key) {
  static QHash<QString, QIcon> known;
  const QString name = ToQt(key);
  const auto found = known.constFind(name);
  if (found != known.constEnd()) return *found;
  const bool exists = !key.empty() && QFile::exists(":/corvane/icons/" + name + ".svg");
  return *known.insert(name, exists ? QIcon(new SvgIconEngine(name)) : QIcon());
}

QVariant Variant(const std::string& key) {
  const QIcon icon = Get(key);
  return icon.isNull() ? QVariant() : QVariant(icon);
}

QPixmap Picture(const std::string& key, const QSize& size, double density) {
  if (Get(key).isNull()) return {};
  SvgIconEngine engine(ToQt(key));
  const QSize logical = size.isEmpty() ? engine.NaturalSize() : size;
  QPixmap picture = engine.pixmap((QSizeF(logical) * density).toSize(), QIcon::Normal, QIcon::Off);
  picture.setDevicePixelRatio(density);
  return picture;
}

bool IsDark() { return QGuiApplication::palette().window().color().lightness() < 128; }

}  // namespace corvane::qt::icons
