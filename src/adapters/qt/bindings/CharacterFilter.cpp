#include "adapters/qt/bindings/CharacterFilter.h"

#include <algorithm>

#include "adapters/qt/Text.h"

namespace corvane::qt {

// What is new ends at the cursor: comparing the texts alone would take a second blank for the first one.
QValidator::State CharacterFilter::validate(QString& input, int& cursor) const {
  const QString before = ToQt(control_.Text);
  const QString tail = input.mid(cursor);
  const qsizetype room = before.endsWith(tail) ? before.size() - tail.size() : 0;
  const auto limit = std::min<qsizetype>(room, cursor);
  const auto first = std::mismatch(before.begin(), before.begin() + limit, input.begin()).first - before.begin();
  QString kept = input.left(first);
  for (const uint character : input.mid(first, cursor - first).toUcs4())
    if (control_.KeyPress(character)) kept += QString::fromUcs4(reinterpret_cast<const char32_t*>(&character), 1);
  cursor = static_cast<int>(kept.size());
  input = kept + tail;
  return Acceptable;
}

}  // namespace corvane::qt
