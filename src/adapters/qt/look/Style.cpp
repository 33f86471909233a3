#include "adapters/qt/look/Style.h"

#include <QStyleOption>
#include <algorithm>

#include "adapters/qt/look/Icons.h"
#include "adapters/qt/look/StylePainter.h"

namespace corvane::qt {
namespace {

constexpr int FieldHeight = 30;
constexpr int FieldMargin = 4;
constexpr int CellMargin = 5;
constexpr int ButtonWidth = 92;
constexpr int ScrollBarWidth = 12;
constexpr int ShortestHandle = 28;

/// The part of a scroll bar: no arrow buttons, a handle that fills the rest in its place.
QRect ScrollBarPart(const QStyleOptionSlider& bar, QStyle::SubControl part) {
  const bool flat = bar.orientation == Qt::Horizontal;
  const int length = flat ? bar.rect.width() : bar.rect.height();
  const int range = bar.maximum - bar.minimum;
  const int wanted = static_cast<int>(qint64(length) * bar.pageStep / std::max(1, range + bar.pageStep));
  const int handle = range > 0 ? std::clamp(wanted, std::min(ShortestHandle, length), length) : length;
  const int start =
      QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition, length - handle, bar.upsideDown);
  const auto cut = [&](int from, int size) {
    return flat ? QRect(bar.rect.x() + from, bar.rect.y(), size, bar.rect.height())
                : QRect(bar.rect.x(), bar.rect.y() + from, bar.rect.width(), size);
  };
  switch (part) {
    case QStyle::SC_ScrollBarSlider:
      return cut(start, handle);
    case QStyle::SC_ScrollBarSubPage:
      return cut(0, start);
    case QStyle::SC_ScrollBarAddPage:
      return cut(start + handle, length - start - handle);
    case QStyle::SC_ScrollBarGroove:
      return bar.rect;
    default:
      return {};
  }
}

// Such buttons stand close together: all commands have to fit into one row.
bool IsPictureAlone(const QStyleOption* option) {
  const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(option);
  return button != nullptr && button->toolButtonStyle == Qt::ToolButtonIconOnly;
}

}  // namespace

Style::Style() : QProxyStyle("Fusion") {}

int Style::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  switch (metric) {
    case PM_LayoutLeftMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutBottomMargin:
      return 14;
    case PM_LayoutHorizontalSpacing:
      return 10;
    case PM_LayoutVerticalSpacing:
      return 8;
    case PM_ScrollBarExtent:
      return ScrollBarWidth;
    case PM_SmallIconSize:
    case PM_ListViewIconSize:
      return 18;
    case PM_ToolBarIconSize:
      return 24;
    case PM_MessageBoxIconSize:
      return 40;
    case PM_HeaderMargin:
    case PM_FocusFrameHMargin:
      return CellMargin;
    case PM_TabBarTabHSpace:
      return 30;
    case PM_TabBarTabVSpace:
      return 16;
    case PM_TabBarBaseOverlap:
      return 1;
    case PM_ToolBarItemSpacing:
      return 2;
    case PM_ToolBarItemMargin:
      return 4;
    case PM_MenuVMargin:
      return 4;
    case PM_MenuBarItemSpacing:
      return 2;
    case PM_MenuBarHMargin:
      return 6;
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
      return 0;
    default:
      return QProxyStyle::pixelMetric(metric, option, widget);
  }
}

int Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                     QStyleHintReturn* returned) const {
  if (hint == SH_EtchDisabledText || hint == SH_ComboBox_Popup) return 0;
  if (hint == SH_ItemView_ShowDecorationSelected) return 1;
  return QProxyStyle::styleHint(hint, option, widget, returned);
}

QSize Style::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                              const QWidget* widget) const {
  QSize result = QProxyStyle::sizeFromContents(type, option, size, widget);
  switch (type) {
    case CT_PushButton:
      return {std::max(result.width() + 16, ButtonWidth), std::max(result.height(), FieldHeight)};
    case CT_LineEdit:
    case CT_ComboBox:
      return {result.width(), std::max(result.height(), FieldHeight)};
    case CT_ItemViewItem:
      return {result.width() + 6, std::max(result.height() + 6, 26)};
    case CT_HeaderSection:
      return {result.width() + 2 * CellMargin, FieldHeight};
    case CT_MenuItem:
      return {result.width() + 12, result.height() + 4};
    case CT_MenuBarItem:
      return {result.width() + 4, result.height() + 6};
    case CT_ToolButton:
      return {result.width() + (IsPictureAlone(option) ? 4 : 10), result.height() + 4};
    default:
      return result;
  }
}

QRect Style::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                            const QWidget* widget) const {
  if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option); bar && control == CC_ScrollBar)
    return ScrollBarPart(*bar, part);
  QRect rect = QProxyStyle::subControlRect(control, option, part, widget);
  // The title is written in a heavier face than the one it was measured in.
  if (control == CC_GroupBox && part == SC_GroupBoxLabel) rect.setWidth(rect.width() + rect.width() / 10 + 4);
  if (control == CC_ComboBox && part == SC_ComboBoxEditField) rect.adjust(FieldMargin, 0, 0, 0);
  return rect;
}

QRect Style::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const {
  QRect rect = QProxyStyle::subElementRect(element, option, widget);
  if (element == SE_LineEditContents && option->rect.height() >= FieldHeight)
    rect.adjust(FieldMargin, 0, -FieldMargin, 0);
  return rect;
}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                          const QWidget* widget) const {
  if (!StylePainter(*option, *painter).Primitive(element)) QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void Style::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                        const QWidget* widget) const {
  if (StylePainter(*option, *painter).Control(element)) return;
  const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
  if (element == CE_PushButtonLabel && button && StylePainter::IsAccented(*button)) {
    QStyleOptionButton accented = *button;
    accented.palette.setBrush(QPalette::ButtonText, option->palette.brightText());
    QProxyStyle::drawControl(element, &accented, painter, widget);
    return;
  }
  QProxyStyle::drawControl(element, option, painter, widget);
}

void Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                               const QWidget* widget) const {
  StylePainter own(*option, *painter);
  if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option); bar && control == CC_ScrollBar) {
    own.ScrollBar(*bar, ScrollBarPart(*bar, SC_ScrollBarSlider));
  } else if (const auto* box = qstyleoption_cast<const QStyleOptionComboBox*>(option); box && control == CC_ComboBox) {
    own.ComboBox(*box, subControlRect(control, option, SC_ComboBoxArrow, widget));
  } else if (const auto* group = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
             group && control == CC_GroupBox) {
    own.GroupBox(*group, subControlRect(control, option, SC_GroupBoxFrame, widget),
                 subControlRect(control, option, SC_GroupBoxLabel, widget));
  } else {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
  }
}

QIcon Style::standardIcon(StandardPixmap sign, const QStyleOption* option, const QWidget* widget) const {
  switch (sign) {
    case SP_MessageBoxInformation:
      return icons::Get("info");
    case SP_MessageBoxWarning:
      return icons::Get("warning");
    case SP_MessageBoxCritical:
      return icons::Get("error");
    case SP_MessageBoxQuestion:
      return icons::Get("help");
    default:
      return QProxyStyle::standardIcon(sign, option, widget);
  }
}

}  // namespace corvane::qt
