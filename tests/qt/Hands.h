#pragma once

#include <QApplication>
#include <QTest>
#include <QTreeView>

#include "adapters/qt/HelpWindow.h"

namespace corvane::test {

/// The middle of a widget, or of an item of a view, in its window.
inline QPoint MiddleOf(const QWidget& widget) { return widget.mapTo(widget.window(), widget.rect().center()); }
inline QPoint MiddleOf(const QTreeView& view, const QModelIndex& index) {
  return view.viewport()->mapTo(view.window(), view.visualRect(index).center());
}

/// Clicks at a place of a window as the window system does: one that is blocked does not get it.
inline void ClickAt(const QWidget& widget, QPoint place, Qt::KeyboardModifiers keys = Qt::NoModifier,
                    Qt::MouseButton button = Qt::LeftButton) {
  QTest::mouseClick(widget.window()->windowHandle(), button, keys, place);
}

/// The open help window.
inline qt::HelpWindow& Help() {
  for (QWidget* window : QApplication::topLevelWidgets())
    if (auto* help = dynamic_cast<qt::HelpWindow*>(window)) return *help;
  throw std::runtime_error("no help window");
}

}  // namespace corvane::test
