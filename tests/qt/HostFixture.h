#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <functional>

#include "TestForm.h"
#include "adapters/qt/FormView.h"
#include "adapters/qt/QtHost.h"

namespace corvane::test {

/// A host with the test forms, and the acts of a user on its windows.
class HostTest : public ::testing::Test {
 protected:
  static void Serve(int milliseconds = 0) { QTest::qWait(milliseconds); }
  /// Acts once the loops that the test is going to open are running.
  static void Soon(std::function<void()> act) { QTimer::singleShot(0, qApp, std::move(act)); }

  template <class Widget>
  Widget& WidgetOf(const ui::Control& control) {
    auto* widget =
        Host.ViewOf(control.Parent())->Window().findChild<Widget*>(QString::fromStdString(qt::WidgetName(control)));
    if (widget == nullptr) throw std::runtime_error("no fitting widget for " + std::string(control.Name()));
    return *widget;
  }
  /// Clicks where the widget is on the screen: a window that is blocked does not get it.
  void Click(const ui::Control& button) {
    const QWidget& widget = WidgetOf<QWidget>(button);
    const QPoint place = widget.mapTo(widget.window(), widget.rect().center());
    QTest::mouseClick(widget.window()->windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
  }
  void Key(const ui::Form& form, Qt::Key key) { QTest::keyClick(&Host.ViewOf(form)->Window(), key); }

  qt::QtHost Host{TestForms(), CORVANE_SOURCE_DIR "/data/help"};
};

}  // namespace corvane::test
