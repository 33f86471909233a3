#pragma once

#include <QIcon>
#include <QPixmap>
#include <QSize>
#include <QVariant>
#include <string>

namespace corvane::qt::icons {

/// The icon of a picture's key; an empty one for a key without a picture. Drawn afresh for each size and density, with
/// the line colour of the palette in use.
QIcon Get(const std::string& key);
/// The same for a cell of a list or tree; nothing when the key has no picture.
QVariant Variant(const std::string& key);
/// A picture of a size in logical pixels, or of the size it was drawn for where the size is empty.
QPixmap Picture(const std::string& key, const QSize& size, double density);
/// True where the palette in use is light on dark.
bool IsDark();

}  // namespace corvane::qt::icons
