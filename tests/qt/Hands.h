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

/// Drags from one place of a window to another.
inline void Drag(const QWidget& widget, QPoint from, QPoint to) {
  QWindow* window = widget.window()->windowHandle();
  QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, from);
  for (int step = 1; step <= 5; ++step) QTest::mouseMove(window, from + (to - from) * step / 5);
  QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, to);
  QTest::qWait(20);
}

/// The open help window.
inline qt::HelpWindow& Help() {
  for (QWidget* window : QApplication::topLevelWidgets())
    if (auto* help = dynamic_cast<qt::HelpWindow*>(window)) return *help;
  throw std::runtime_error("no help window");
}

}  // namespace corvane::test
