#include "adapters/qt/look/StylePainter.h"

#include <QPainterPath>

namespace corvane::qt {
namespace {

constexpr double Radius = 5;

QColor Mix(const QColor& a, const QColor& b, double share) {
  const auto mix = [share](int x, int y) { return static_cast<int>(x + (y - x) * share); };
  return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

/// The rectangle whose line of one pixel falls on whole pixels.
QRectF Crisp(const QRect& rect) { return QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5); }

}  // namespace

bool StylePainter::IsAccented(const QStyleOptionButton& button) {
  return button.features.testFlag(QStyleOptionButton::DefaultButton) && button.state.testFlag(QStyle::State_Enabled);
}

bool StylePainter::Primitive(QStyle::PrimitiveElement element) {
  switch (element) {
    case QStyle::PE_PanelButtonCommand:
      Button();
      return true;
    case QStyle::PE_PanelLineEdit:
    case QStyle::PE_FrameLineEdit:
      Field();
      return true;
    case QStyle::PE_Frame:
      Frame(Has(QStyle::State_HasFocus) ? Accent() : LineColour());
      return true;
    case QStyle::PE_FrameTabWidget:
      Frame(LineColour());
      return true;
    case QStyle::PE_FrameFocusRect:
      Frame(Mix(option_.palette.highlight().color(), Accent(), 0.6));
      return true;
    case QStyle::PE_PanelScrollAreaCorner:
      painter_.fillRect(option_.rect, option_.palette.base());
      return true;
    case QStyle::PE_IndicatorBranch:
      Branch();
      return true;
    case QStyle::PE_FrameStatusBarItem:
    case QStyle::PE_FrameDefaultButton:
      return true;
    default:
      return false;
  }
}

bool StylePainter::Control(QStyle::ControlElement element) {
  switch (element) {
    case QStyle::CE_HeaderSection:
    case QStyle::CE_HeaderEmptyArea:
      Header();
      return true;
    case QStyle::CE_TabBarTabShape:
      Tab();
      return true;
    case QStyle::CE_ToolBar:
      Line(option_.rect.bottomLeft(), option_.rect.bottomRight());
      return true;
    case QStyle::CE_ProgressBarGroove:
      ProgressGroove();
      return true;
    case QStyle::CE_ProgressBarContents:
      ProgressContents();
      return true;
    default:
      return false;
  }
}

void StylePainter::Box(const QRectF& rect, const QColor& fill, const QColor& line) {
  painter_.save();
  painter_.setRenderHint(QPainter::Antialiasing);
  painter_.setPen(line);
  painter_.setBrush(fill);
  painter_.drawRoundedRect(rect, Radius, Radius);
  painter_.restore();
}

void StylePainter::Frame(const QColor& line) {
  painter_.setPen(line);
  painter_.setBrush(Qt::NoBrush);
  painter_.drawRect(Crisp(option_.rect));
}

void StylePainter::Button() {
  const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option_);
  const bool accented = button != nullptr && IsAccented(*button);
  const QPalette& palette = option_.palette;
  QColor fill = accented ? Accent() : palette.button().color();
  if (!Has(QStyle::State_Enabled))
    fill = palette.window().color();
  else if (Has(QStyle::State_Sunken))
    fill = Mix(fill, palette.text().color(), 0.16);
  else if (Has(QStyle::State_MouseOver))
    fill = Mix(fill, accented ? palette.text().color() : Accent(), 0.1);
  Box(Crisp(option_.rect), fill, accented ? Mix(Accent(), palette.text().color(), 0.2) : LineColour());
  if (!Has(QStyle::State_HasFocus)) return;
  const QRectF ring =
      Crisp(option_.rect).adjusted(accented ? 2 : 0, accented ? 2 : 0, accented ? -2 : 0, accented ? -2 : 0);
  Box(ring, Qt::transparent, accented ? palette.brightText().color() : Accent());
}

// A line edit inside another box asks for no frame of its own.
void StylePainter::Field() {
  const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(&option_);
  if (frame != nullptr && frame->lineWidth <= 0) return;
  const bool still = !Has(QStyle::State_Enabled) || Has(QStyle::State_ReadOnly);
  Box(Crisp(option_.rect), still ? option_.palette.window().color() : option_.palette.base().color(),
      Has(QStyle::State_HasFocus) ? Accent() : LineColour());
}

void StylePainter::Chevron(const QRect& place, bool down) {
  const QPointF middle = QRectF(place).center();
  const double size = 3.5;
  QPainterPath path;
  if (down) {
    path.moveTo(middle + QPointF(-size, -size / 2));
    path.lineTo(middle + QPointF(0, size / 2));
    path.lineTo(middle + QPointF(size, -size / 2));
  } else {
    path.moveTo(middle + QPointF(-size / 2, -size));
    path.lineTo(middle + QPointF(size / 2, 0));
    path.lineTo(middle + QPointF(-size / 2, size));
  }
  painter_.save();
  painter_.setRenderHint(QPainter::Antialiasing);
  const auto group = Has(QStyle::State_Enabled) ? QPalette::Active : QPalette::Disabled;
  QPen pen(Mix(option_.palette.color(group, QPalette::Text), option_.palette.base().color(), 0.25), 1.6);
  pen.setCapStyle(Qt::RoundCap);
  painter_.setPen(pen);
  painter_.setBrush(Qt::NoBrush);
  painter_.drawPath(path);
  painter_.restore();
}

void StylePainter::Branch() {
  if (Has(QStyle::State_Children)) Chevron(option_.rect, Has(QStyle::State_Open));
}

void StylePainter::Line(const QPoint& from, const QPoint& to) {
  painter_.setPen(LineColour());
  painter_.drawLine(from, to);
}

void StylePainter::Header() {
  const QRect& rect = option_.rect;
  const QColor fill = option_.palette.window().color();
  painter_.fillRect(rect, Has(QStyle::State_MouseOver) ? Mix(fill, Accent(), 0.12) : fill);
  Line(rect.bottomLeft(), rect.bottomRight());
  if (rect.right() < painter_.device()->width() - 1)
    Line(rect.topRight() + QPoint(0, 7), rect.bottomRight() - QPoint(0, 7));
}

void StylePainter::Tab() {
  const QRect& rect = option_.rect;
  const bool selected = Has(QStyle::State_Selected);
  if (selected) {
    painter_.fillRect(rect, option_.palette.window());
    painter_.setPen(LineColour());
    painter_.drawLine(rect.topLeft(), rect.bottomLeft());
    painter_.drawLine(rect.topRight(), rect.bottomRight());
    painter_.fillRect(QRect(rect.left(), rect.top(), rect.width(), 3), Accent());
  } else if (Has(QStyle::State_MouseOver)) {
    painter_.fillRect(rect.adjusted(0, 4, 0, -1), Mix(option_.palette.window().color(), Accent(), 0.08));
  }
}

void StylePainter::ProgressGroove() {
  Box(Crisp(option_.rect), Mix(option_.palette.window().color(), LineColour(), 0.35), LineColour());
}

void StylePainter::ProgressContents() {
  const auto* bar = qstyleoption_cast<const QStyleOptionProgressBar*>(&option_);
  if (bar == nullptr || bar->progress <= bar->minimum || bar->maximum <= bar->minimum) return;
  QRectF rect = Crisp(option_.rect);
  rect.setWidth(rect.width() * (bar->progress - bar->minimum) / (bar->maximum - bar->minimum));
  Box(rect, Accent(), Accent());
}

void StylePainter::ComboBox(const QStyleOptionComboBox& box, const QRect& arrow) {
  const bool enabled = Has(QStyle::State_Enabled);
  QColor fill = box.editable ? box.palette.base().color() : box.palette.button().color();
  if (!enabled)
    fill = box.palette.window().color();
  else if (!box.editable && Has(QStyle::State_MouseOver))
    fill = Mix(fill, Accent(), 0.1);
  Box(Crisp(box.rect), fill, Has(QStyle::State_HasFocus) ? Accent() : LineColour());
  Chevron(arrow, true);
}

void StylePainter::GroupBox(const QStyleOptionGroupBox& group, const QRect& frame, const QRect& label) {
  Box(Crisp(frame).adjusted(0, label.height() + 4, 0, 0), Qt::transparent, LineColour());
  painter_.save();
  QFont font = painter_.font();
  font.setWeight(QFont::DemiBold);
  painter_.setFont(font);
  painter_.setPen(
      group.palette.color(Has(QStyle::State_Enabled) ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
  painter_.drawText(label, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, group.text);
  painter_.restore();
}

void StylePainter::ScrollBar(const QStyleOptionSlider& bar, const QRect& handle) {
  painter_.fillRect(bar.rect, bar.palette.base());
  if (bar.maximum <= bar.minimum) return;
  const bool held = Has(QStyle::State_Sunken) || Has(QStyle::State_MouseOver);
  painter_.save();
  painter_.setRenderHint(QPainter::Antialiasing);
  painter_.setPen(Qt::NoPen);
  painter_.setBrush(Mix(LineColour(), bar.palette.text().color(), held ? 0.35 : 0.1));
  painter_.drawRoundedRect(QRectF(handle).adjusted(3, 3, -3, -3), 3, 3);
  painter_.restore();
}

}  // namespace corvane::qt
