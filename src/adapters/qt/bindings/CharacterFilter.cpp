#include "adapters/qt/bindings/CharacterFilter.h"

#include <algorithm>

#include "adapters/qt/Text.h"

namespace corvane::qt {

QValidator::State CharacterFilter::validate(QString& input, int& cursor) const {
  const QList<uint> before = ToQt(control_.Text).toUcs4();
  const QList<uint> after = input.toUcs4();
  const auto [oldEnd, newEnd] = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
  const auto first = newEnd - after.begin();
  const auto room = std::min(before.end() - oldEnd, after.end() - newEnd);
  const auto last = std::mismatch(after.rbegin(), after.rbegin() + room, before.rbegin()).first.base();
  QString kept = QString::fromUcs4(reinterpret_cast<const char32_t*>(after.constData()), first);
  for (auto next = after.begin() + first; next != last; ++next)
    if (control_.KeyPress(*next)) kept += QString::fromUcs4(reinterpret_cast<const char32_t*>(&*next), 1);
  const qsizetype end = kept.size();
  kept += QString::fromUcs4(reinterpret_cast<const char32_t*>(&*last), after.end() - last);
  if (kept.size() != input.size()) cursor = static_cast<int>(std::min<qsizetype>(cursor, end));
  input = kept;
  return Acceptable;
}

}  // namespace corvane::qt
