#include <QAction>
#include <QElapsedTimer>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>

#include "HostFixture.h"
#include "adapters/qt/HelpWindow.h"
#include "platform/RuntimeError.h"

namespace corvane::test {

TEST_F(HostTest, AModalFormEndsByClickEnterEscapeAndCloseBox) {
  const std::vector<std::pair<const char*, std::function<void(frmTest&)>>> ways{
      {"cancel", [this](frmTest& form) { Click(form.cmdCancel); }},
      {"ok", [this](frmTest& form) { Key(form, Qt::Key_Return); }},
      {"cancel", [this](frmTest& form) { Key(form, Qt::Key_Escape); }},
      {"cancel", [this](frmTest& form) { Host.ViewOf(form)->Window().close(); }},
      {"cancel",
       [this](frmTest& form) {
         WidgetOf<QWidget>(form.cmdCancel).setFocus();
         QTest::keyClick(&WidgetOf<QWidget>(form.cmdCancel), Qt::Key_Enter);
       }},
      {"ok", [this](frmTest& form) { QTest::keyClick(&WidgetOf<QWidget>(form.txtName), Qt::Key_Return); }},
      {"ok",
       [this](frmTest& form) {
         EXPECT_TRUE(QTest::qWaitForWindowActive(&Host.ViewOf(form)->Window()));
         QTest::keyClick(&Host.ViewOf(form)->Window(), Qt::Key_O, Qt::AltModifier);
       }},
  };
  for (const auto& [expected, act] : ways) {
    frmTest form(Host);
    std::string pressed;
    form.cmdOK.Click = [&] { pressed += "ok", form.Unload(); };
    form.cmdCancel.Click = [&] { pressed += "cancel", form.Unload(); };
    Soon([&, act = act] { act(form); });
    form.ShowModal();
    EXPECT_EQ(expected, pressed);
    EXPECT_EQ(nullptr, Host.ViewOf(form));
  }
}

TEST_F(HostTest, NothingEndsAFormWhoseCancelIsDisabled) {
  frmTest form(Host);
  form.cmdCancel.Enabled = false;
  form.Show();
  Key(form, Qt::Key_Escape);
  Host.ViewOf(form)->Window().close();
  Click(form.cmdCancel);
  Serve();
  EXPECT_FALSE(form.IsUnloaded());
  EXPECT_TRUE(Host.ViewOf(form)->Window().isVisible());
}

TEST_F(HostTest, AssignmentFiresNothingAndShowsAfterTheHandler) {
  frmTest form(Host);
  int fired = 0;
  form.lstLog.Click = form.tabMain.Click = form.txtName.GotFocus = [&] { ++fired; };
  form.lvwRows.ItemClick = [&](int) { ++fired; };
  form.tvTree.NodeClick = form.tvTree.Expand = [&](ui::NodeId) { ++fired; };
  form.cmdOK.Click = [&] {
    form.txtName.Text = "A & B <b>";
    for (const char* log : {"Application", "System"}) form.lstLog.AddItem(log);
    form.lstLog.SetListIndex(1);
    form.lvwRows.Columns = {{"Name", 1500, false}};
    form.lvwRows.Add({"", "first", {}, "", true});
    const ui::NodeId root = form.tvTree.Add(0, "", "root", "");
    form.tvTree.Add(root, "", "leaf", "");
    form.tvTree.SetExpanded(root, true);
    form.tvTree.Select(root);
    form.tabMain.Tab = 1;
    form.cmdCancel.Enabled = false;
    form.lblName.Visible = false;
    form.Caption = "changed";
  };
  form.tabMain.Captions = {"One", "Two"};
  form.Show();
  Click(form.cmdOK);
  Serve();
  EXPECT_EQ(0, fired);
  EXPECT_EQ("A & B <b>", WidgetOf<QLineEdit>(form.txtName).text());
  EXPECT_EQ("System", WidgetOf<QComboBox>(form.lstLog).currentText());
  EXPECT_EQ("Two", WidgetOf<QTabWidget>(form.tabMain).tabText(1));
  EXPECT_EQ(1, WidgetOf<QTabWidget>(form.tabMain).currentIndex());
  EXPECT_FALSE(WidgetOf<QWidget>(form.cmdCancel).isEnabled());
  EXPECT_TRUE(WidgetOf<QWidget>(form.lblName).isHidden());
  EXPECT_EQ("changed", Host.ViewOf(form)->Window().windowTitle());
}

TEST_F(HostTest, WhatTheUserDoesReachesTheControlBeforeItsHandler) {
  frmTest form(Host);
  std::string seen;
  form.lstLog.AddItem("Application");
  form.lstLog.AddItem("System");
  form.lstLog.SetListIndex(0);
  form.lstLog.Click = [&] { seen += form.lstLog.Text(); };
  form.tabMain.Captions = {"One", "Two"};
  form.tabMain.Click = [&] { seen += " tab " + std::to_string(form.tabMain.Tab); };
  form.Show();
  QTest::keyClicks(&WidgetOf<QLineEdit>(form.txtName), "SERVER1");
  QTest::keyClick(&WidgetOf<QComboBox>(form.lstLog), Qt::Key_Down);
  QTabBar& bar = *WidgetOf<QTabWidget>(form.tabMain).tabBar();
  QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier, bar.tabRect(1).center());
  Serve();
  EXPECT_EQ("SERVER1", form.txtName.Text);
  EXPECT_EQ("System tab 1", seen);
}

TEST_F(HostTest, AnEditableBoxTakesWhatIsTyped) {
  frmTest form(Host);
  form.lstLog.Editable = true;
  form.lstLog.AddItem("SERVER1");
  std::string changes;
  form.lstLog.Change = [&] { changes += form.lstLog.Text() + "/" + std::to_string(form.lstLog.ListIndex()) + " "; };
  form.Show();
  QTest::keyClicks(WidgetOf<QComboBox>(form.lstLog).lineEdit(), "S1");
  EXPECT_EQ("S/-1 S1/-1 ", changes);
  EXPECT_EQ("S1", WidgetOf<QComboBox>(form.lstLog).currentText());
  QTest::keyClick(&WidgetOf<QComboBox>(form.lstLog), Qt::Key_Return);
  EXPECT_TRUE(form.IsUnloaded());
}

TEST_F(HostTest, ModalFormsNestAndGiveTheirOpenerBack) {
  frmTest outer(Host);
  std::string order;
  outer.cmdOK.Click = [&] {
    frmTest inner(Host);
    Soon([&] {
      EXPECT_TRUE(QTest::qWaitForWindowActive(&Host.ViewOf(inner)->Window()));
      Click(outer.cmdCancel);  // blocked by the inner form
      order += "inner ";
      Click(inner.cmdOK);
    });
    inner.ShowModal();
    order += "back ";
  };
  Soon([&] { Click(outer.cmdOK); });
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, [&] {
    if (order != "inner back ") return;
    watch.stop();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Host.ViewOf(outer)->Window()));
    Click(outer.cmdCancel);
  });
  watch.start(5);
  outer.ShowModal();
  EXPECT_EQ("inner back ", order);
}

TEST_F(HostTest, AnErrorOutOfAHandlerEndsEveryLoopAndIsRaisedAgain) {
  frmTest outer(Host);
  bool swallowed = false;
  outer.cmdOK.Click = [&] {
    frmTest inner(Host);
    inner.cmdOK.Click = [] { throw RuntimeError(errors::TypeMismatch, "Type mismatch"); };
    Soon([&] { Click(inner.cmdOK); });
    // Code that passes over errors does not keep the program alive.
    try {
      inner.ShowModal();
    } catch (const RuntimeError&) {
      swallowed = true;
    }
    EXPECT_THROW(Host.MsgBox("too late", ui::MsgIcon::Exclamation), RuntimeError);
  };
  Soon([&] { Click(outer.cmdOK); });
  EXPECT_THROW(outer.ShowModal(), RuntimeError);
  EXPECT_TRUE(swallowed);

  // The failure was told; what comes afterwards works again.
  frmTest next(Host);
  Soon([&] { Click(next.cmdOK); });
  next.ShowModal();
  EXPECT_TRUE(next.IsUnloaded());
}

TEST_F(HostTest, EndProgramLeavesTheMainLoopWithItsExitCode) {
  frmTest form(Host);
  int later = 0;
  form.cmdCancel.Click = [&] { ++later; };
  form.cmdOK.Click = [&] {
    Soon([&] { Click(form.cmdCancel); });
    Host.EndProgram(7);
  };
  form.Show();
  Soon([&] { Click(form.cmdOK); });
  EXPECT_EQ(7, Host.Run());
  EXPECT_EQ(0, later);
}

TEST_F(HostTest, TheMainLoopEndsWithTheLastWindowAndRaisesErrors) {
  frmTest first(Host), second(Host);
  first.Show();
  second.Show();
  Soon([&] {
    Click(first.cmdOK);
    Soon([&] { Click(second.cmdOK); });
  });
  EXPECT_EQ(0, Host.Run());
  EXPECT_TRUE(first.IsUnloaded() && second.IsUnloaded());

  frmTest third(Host);
  third.cmdOK.Click = [] { throw RuntimeError(errors::Overflow, "Overflow"); };
  third.Show();
  Soon([&] { Click(third.cmdOK); });
  EXPECT_THROW(Host.Run(), RuntimeError);
}

TEST_F(HostTest, AFormMayDieInItsOwnHandler) {
  auto form = std::make_unique<frmTest>(Host);
  form->cmdOK.Click = [&] { form.reset(); };
  form->Show();
  const frmTest* dead = form.get();
  QPointer<QWidget> window = &Host.ViewOf(*dead)->Window();
  Click(form->cmdOK);
  Serve();
  EXPECT_EQ(nullptr, form);
  EXPECT_TRUE(window.isNull());
}

TEST_F(HostTest, EventsAreServedAtMostEveryTenMilliseconds) {
  frmTest form(Host);
  form.Show();
  Serve(20);
  Host.DoEvents();
  bool served = false;
  Soon([&] { served = true; });
  Host.DoEvents();
  EXPECT_FALSE(served);
  QTest::qSleep(11);
  Host.DoEvents();
  EXPECT_TRUE(served);
}

TEST_F(HostTest, DoEventsTakesInputAndPassesErrorsOn) {
  frmTest form(Host);
  bool stopped = false;
  form.cmdCancel.Click = [&] { stopped = true; };
  form.cmdOK.Click = [&] {
    QElapsedTimer time;
    time.start();
    Soon([&] { Click(form.cmdCancel); });
    while (!stopped && time.elapsed() < 2000) Host.DoEvents();
  };
  form.Show();
  Click(form.cmdOK);
  EXPECT_TRUE(stopped);

  form.cmdCancel.Click = [] { throw RuntimeError(errors::Overflow, "Overflow"); };
  Soon([&] { Click(form.cmdCancel); });
  QTest::qSleep(11);
  EXPECT_THROW(Host.DoEvents(), RuntimeError);
}

TEST_F(HostTest, SleepPaintsButRunsNoHandler) {
  frmTest form(Host);
  int ticks = 0;
  form.tmrTick.Interval = 1;
  form.tmrTick.Enabled = true;
  form.tmrTick.Tick = [&] { ++ticks; };
  form.cmdOK.Click = [&] { form.Caption = "clicked"; };
  form.Caption = "sleeping";
  form.Show();
  Soon([&] { Click(form.cmdOK); });
  form.Caption = "shown";
  QElapsedTimer time;
  time.start();
  Host.Sleep(40);
  EXPECT_GE(time.elapsed(), 40);
  EXPECT_EQ(0, ticks);
  EXPECT_EQ("shown", form.Caption);
  EXPECT_EQ("shown", Host.ViewOf(form)->Window().windowTitle());
  Serve(30);
  EXPECT_GT(ticks, 0);
}

TEST_F(HostTest, ATimerTicksWhileEnabledAndNeverIntoItself) {
  frmTest form(Host);
  int ticks = 0, running = 0;
  form.tmrTick.Interval = 2;
  form.tmrTick.Tick = [&] {
    EXPECT_EQ(0, running++);
    Serve(10);
    --running;
    if (++ticks == 3) form.tmrTick.Enabled = false;
  };
  form.Show();
  Serve(20);
  EXPECT_EQ(0, ticks);
  form.cmdOK.Click = [&] { form.tmrTick.Enabled = true; };
  Click(form.cmdOK);
  Serve(200);
  EXPECT_EQ(3, ticks);
}

TEST_F(HostTest, BoxesShowPlainTextAndAnswerByKey) {
  struct Case {
    ui::MsgButtons Buttons;
    Qt::Key Key;
    ui::MsgResult Result;
  };
  for (const Case& one : {Case{ui::MsgButtons::Ok, Qt::Key_Escape, ui::MsgResult::Ok},
                          Case{ui::MsgButtons::OkCancel, Qt::Key_Return, ui::MsgResult::Ok},
                          Case{ui::MsgButtons::OkCancel, Qt::Key_Escape, ui::MsgResult::Cancel},
                          Case{ui::MsgButtons::YesNo, Qt::Key_Return, ui::MsgResult::Yes},
                          Case{ui::MsgButtons::YesNo, Qt::Key_Escape, ui::MsgResult::No},
                          Case{ui::MsgButtons::YesNo, Qt::Key_N, ui::MsgResult::No}}) {
    Soon([&] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box == nullptr) throw std::runtime_error("no box");
      EXPECT_TRUE(QTest::qWaitForWindowActive(box));
      EXPECT_EQ("<b>a</b> & b", box->text());
      EXPECT_EQ(Qt::PlainText, box->textFormat());
      EXPECT_EQ("Title", box->windowTitle());
      EXPECT_EQ(QMessageBox::Question, box->icon());
      QTest::keyClick(box, one.Key, one.Key == Qt::Key_N ? Qt::AltModifier : Qt::NoModifier);
    });
    EXPECT_EQ(one.Result, Host.MsgBox("<b>a</b> & b", ui::MsgIcon::Question, one.Buttons, "Title"));
  }
}

TEST_F(HostTest, WhatWasPostponedComesBeforeTheNextClick) {
  frmTest form(Host);
  std::string order;
  form.txtName.GotFocus = [&] { order += "focus "; };
  form.cmdOK.Click = [&] { order += "click "; };
  form.Show();
  Serve();
  order.clear();
  WidgetOf<QWidget>(form.cmdCancel).setFocus();
  QTest::mousePress(&WidgetOf<QWidget>(form.txtName), Qt::LeftButton);
  Host.SetFocus(form.txtName);
  Click(form.cmdOK);
  EXPECT_EQ("focus click ", order);
}

TEST_F(HostTest, ThePointerIsTheHourglassWhereTheFormSaysSo) {
  frmTest form(Host);
  form.Show();
  form.cmdOK.Click = [&] { form.MousePointer = ui::Pointer::Hourglass; };
  form.cmdCancel.Click = [&] { form.MousePointer = ui::Pointer::Default; };
  Click(form.cmdOK);
  EXPECT_EQ(Qt::WaitCursor, WidgetOf<QWidget>(form.txtName).cursor().shape());
  EXPECT_EQ(Qt::WaitCursor, Host.ViewOf(form)->Window().cursor().shape());
  Click(form.cmdCancel);
  EXPECT_EQ(Qt::IBeamCursor, WidgetOf<QWidget>(form.txtName).cursor().shape());
}

TEST_F(HostTest, MenusOpenPopUpAndRunTheirShortcuts) {
  frmMenus form(Host);
  std::string order;
  form.mnuFile.Click = [&] {
    order += "open ";
    form.mnuFileRefresh.Enabled = false;
  };
  form.mnuFileRefresh.Click = [&] { order += "refresh "; };
  form.mnuPopupDelete.Click = [&] { order += "delete "; };
  form.tbrMain.Buttons = {{"add", "Add", "", "add", true, false}, {"", "", "", "", true, true}};
  form.tbrMain.ButtonClick = [&](const std::string& key) {
    order += key + " ";
    form.tbrMain.Button("add").Enabled = false;
  };
  form.stbMain.Panels = {{"Count", "3 <b>rows", ""}};
  form.Show();
  QMainWindow& window = static_cast<QMainWindow&>(Host.ViewOf(form)->Window());
  EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  QTest::keyClick(&window, Qt::Key_F5);
  Soon([] { QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_D); });
  Host.PopupMenu(form.mnuPopup);
  QAction* add = window.findChild<QAction*>("add");
  add->trigger();
  EXPECT_FALSE(add->isEnabled());
  Soon([] { QApplication::activePopupWidget()->close(); });
  window.menuBar()->actions().front()->menu()->exec();
  EXPECT_EQ("refresh delete add open ", order);
  EXPECT_FALSE(window.findChild<QAction*>("mnuFileRefresh")->isEnabled());
  EXPECT_EQ(1, window.menuBar()->actions().size());
}

TEST_F(HostTest, F1OpensTheFormsTopicBesideAModalForm) {
  frmTest form(Host);
  form.HelpContext = 120;
  Soon([&] {
    Key(form, Qt::Key_F1);
    qt::HelpWindow* help = nullptr;
    for (QWidget* window : QApplication::topLevelWidgets())
      if (auto* found = dynamic_cast<qt::HelpWindow*>(window)) help = found;
    if (help == nullptr) throw std::runtime_error("no help window");
    EXPECT_TRUE(QTest::qWaitForWindowActive(help));
    EXPECT_TRUE(help->loadResource(QTextDocument::HtmlResource, QUrl("file:///etc/hostname")).isNull());
    EXPECT_TRUE(help->loadResource(QTextDocument::HtmlResource, QUrl("http://127.0.0.1/")).isNull());
    QTest::keyClick(help->windowHandle(), Qt::Key_Escape);
    EXPECT_FALSE(help->isVisible());
    Click(form.cmdOK);
  });
  form.ShowModal();
  Host.CloseHelp();
}

}  // namespace corvane::test
