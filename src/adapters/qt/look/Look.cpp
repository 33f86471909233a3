#include "adapters/qt/look/Look.h"

#include <QApplication>
#include <QFont>
#include <QPalette>

#include "adapters/qt/look/Icons.h"
#include "adapters/qt/look/Style.h"

// Resources of a static library have to be named once; the macro behind it may not stand in a namespace.
static void InitResources() { Q_INIT_RESOURCE(corvane_icons); }

namespace corvane::qt {
namespace {

struct Colours {
  QRgb Window, Base, Alternate, Text, Muted, Button, Line, Accent, AccentText, Highlight, HighlightedText, ToolTip;
};

constexpr Colours LightColours{0xfff3f5f8, 0xffffffff, 0xfff7f9fb, 0xff1d2733, 0xff6c7885, 0xffffffff,
                               0xffc9d1da, 0xff1f6fb8, 0xffffffff, 0xffd3e6f8, 0xff14304d, 0xff26323f};
constexpr Colours DarkColours{0xff22282f, 0xff1a1f25, 0xff1f252c, 0xffe3e8ee, 0xff8b96a3, 0xff2d353e,
                              0xff434d59, 0xff4a9be0, 0xff0d1a26, 0xff2d4d6d, 0xfff2f7fc, 0xff39434f};

QPalette MakePalette(const Colours& colours) {
  QPalette palette(QColor::fromRgb(colours.Button), QColor::fromRgb(colours.Window));
  const auto set = [&](QPalette::ColorRole role, QRgb colour) { palette.setColor(role, QColor::fromRgb(colour)); };
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    set(role, colours.Text);
    palette.setColor(QPalette::Disabled, role, QColor::fromRgb(colours.Muted));
  }
  set(QPalette::Base, colours.Base);
  palette.setColor(QPalette::Disabled, QPalette::Base, QColor::fromRgb(colours.Window));
  set(QPalette::AlternateBase, colours.Alternate);
  set(QPalette::PlaceholderText, colours.Muted);
  set(QPalette::Mid, colours.Line);
  set(QPalette::Highlight, colours.Highlight);
  set(QPalette::HighlightedText, colours.HighlightedText);
  // The accent of default buttons, focus frames and progress bars, and what is written on it.
  set(QPalette::Link, colours.Accent);
  set(QPalette::BrightText, colours.AccentText);
  set(QPalette::ToolTipBase, colours.ToolTip);
  palette.setColor(QPalette::ToolTipText, QColor(0xf2, 0xf5, 0xf8));
  return palette;
}

QFont MakeFont() {
  QFont font;
  font.setFamilies({"Inter", "Noto Sans"});
  font.setPointSizeF(10);
  return font;
}

}  // namespace

void SetUpLook(Scheme scheme) {
  InitResources();
  const bool dark = scheme == Scheme::Dark || (scheme == Scheme::Desktop && icons::IsDark());
  QApplication::setStyle(new Style);
  QApplication::setPalette(MakePalette(dark ? DarkColours : LightColours));
  QApplication::setFont(MakeFont());
  QApplication::setWindowIcon(icons::Get("app"));
}

}  // namespace corvane::qt
