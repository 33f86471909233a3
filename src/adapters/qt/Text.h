#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace corvane::qt {

/// UTF-8 of the console to the toolkit's text and back.
inline QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string FromQt(const QString& text) { return text.toStdString(); }

/// A text for a place where the toolkit would take markup as such: shown letter by letter.
inline QString PlainToolTip(std::string_view text) {
  const QString plain = ToQt(text);
  return plain.contains(QLatin1Char('<')) ? "<span>" + plain.toHtmlEscaped() + "</span>" : plain;
}

}  // namespace corvane::qt
