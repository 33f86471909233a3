#pragma once

#include <gtest/gtest.h>

#include <QTimer>
#include <functional>

#include "Hands.h"
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

  QWidget& Window(const ui::Form& shown) { return Host.ViewOf(shown)->Window(); }
  template <class Widget = QWidget>
  Widget& WidgetOf(const ui::Control& control) {
    auto* widget = Window(control.Parent()).findChild<Widget*>(QString::fromStdString(qt::WidgetName(control)));
    if (widget == nullptr) throw std::runtime_error("no fitting widget for " + std::string(control.Name()));
    return *widget;
  }
  static void Await(QWidget& window) { EXPECT_TRUE(QTest::qWaitForWindowActive(&window)); }
  void Click(const ui::Control& button) { ClickAt(WidgetOf(button), MiddleOf(WidgetOf(button))); }
  /// Does this in a handler of the form.
  void InHandler(std::function<void()> act) {
    form.cmdOK.Click = std::move(act);
    Click(form.cmdOK);
  }
  /// A key that the window gets, or the control with the focus.
  void Key(const ui::Form& shown, Qt::Key key) { QTest::keyClick(&Window(shown), key); }
  void Key(const ui::Control& control, Qt::Key key) {
    WidgetOf(control).setFocus();
    QTest::keyClick(&WidgetOf(control), key);
    Serve();
  }

  qt::QtHost Host{TestForms(), CORVANE_SOURCE_DIR "/data/help"};
  frmTest form{Host};
};

}  // namespace corvane::test
