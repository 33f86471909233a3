#include <QElapsedTimer>
#include <QMainWindow>
#include <QMenuBar>
#include <QMessageBox>
#include <QToolButton>
#include <thread>

#include "HostFixture.h"
#include "platform/RuntimeError.h"

namespace corvane::test {

static void Fail() { throw RuntimeError(errors::Overflow, "Overflow"); }

TEST_F(HostTest, AModalFormEndsByClickEnterEscapeAndCloseBox) {
  std::optional<frmTest> modal;
  const std::pair<const char*, std::function<void()>> ways[] = {
      {"cancel", [&] { Click(modal->cmdCancel); }},
      {"ok", [&] { Key(*modal, Qt::Key_Return); }},
      {"cancel", [&] { Key(*modal, Qt::Key_Escape); }},
      {"cancel", [&] { Window(*modal).close(); }},
      {"cancel", [&] { Key(modal->cmdCancel, Qt::Key_Enter); }},
      {"ok", [&] { QTest::keyClick(&Window(*modal), Qt::Key_O, Qt::AltModifier); }},
      {"form",
       [&] {
         ClickAt(Window(*modal), {2, 2});
       }},
  };
  for (const auto& [expected, act] : ways) {
    std::string pressed;
    modal.emplace(Host);
    modal->Click = [&] { pressed += "form", modal->Unload(); };
    modal->cmdOK.Click = [&] { pressed += "ok", modal->Unload(); };
    modal->cmdCancel.Click = [&] { pressed += "cancel", modal->Unload(); };
    Soon([&, act = act] {
      Await(Window(*modal));
      act();
    });
    modal->ShowModal();
    EXPECT_EQ(expected, pressed);
    EXPECT_EQ(nullptr, Host.ViewOf(*modal));
  }
}

TEST_F(HostTest, NothingEndsAFormWhoseCancelIsDisabled) {
  form.cmdCancel.Enabled = false;
  form.Show();
  Key(form, Qt::Key_Escape);
  Window(form).close();
  Click(form.cmdCancel);
  Serve();
  EXPECT_TRUE(!form.IsUnloaded() && Window(form).isVisible());
}

TEST_F(HostTest, AssignmentFiresNothingAndShowsAfterTheHandler) {
  int fired = 0;
  form.lstLog.Click = form.tabMain.Click = [&] { ++fired; };
  form.lvwRows.ItemClick = form.tvTree.NodeClick = form.tvTree.Expand = [&](int) { ++fired; };
  form.tabMain.Captions = {"One", "Two"};
  form.Show();
  InHandler([&] {
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
    form.cmdCancel.Enabled = form.lblName.Visible = false;
    form.MousePointer = ui::Pointer::Hourglass;
  });
  Serve();
  EXPECT_EQ(0, fired);
  EXPECT_EQ("A & B <b>", WidgetOf<QLineEdit>(form.txtName).text());
  EXPECT_EQ("System", WidgetOf<QComboBox>(form.lstLog).currentText());
  EXPECT_EQ(1, WidgetOf<QTabWidget>(form.tabMain).currentIndex());
  EXPECT_TRUE(!WidgetOf(form.cmdCancel).isEnabled() && WidgetOf(form.lblName).isHidden());
  EXPECT_EQ(Qt::WaitCursor, WidgetOf(form.txtName).cursor().shape());
}

TEST_F(HostTest, WhatTheUserDoesReachesTheControlBeforeItsHandler) {
  frmTest editable(Host);
  std::string seen;
  for (const char* log : {"Application", "System"}) form.lstLog.AddItem(log);
  form.lstLog.SetListIndex(0);
  form.lstLog.Click = [&] { seen += form.lstLog.Text(); };
  form.tabMain.Captions = {"One", "Two"};
  form.tabMain.Click = [&] { seen += " tab " + std::to_string(form.tabMain.Tab); };
  form.Show();
  QTest::keyClicks(&WidgetOf<QLineEdit>(form.txtName), "SERVER1");
  Key(form.lstLog, Qt::Key_Down);
  const QTabBar& bar = *WidgetOf<QTabWidget>(form.tabMain).tabBar();
  ClickAt(bar, bar.mapTo(bar.window(), bar.tabRect(1).center()));
  Serve();
  EXPECT_EQ("SERVER1", form.txtName.Text);
  EXPECT_EQ("System tab 1", seen);

  ui::ComboBox& box = editable.lstLog;
  box.Editable = true;
  box.AddItem("SERVER1");  // is not made of what is typed
  box.Change = [&] { seen += " " + box.Text() + "/" + std::to_string(box.ListIndex()); };
  editable.Show();
  QTest::keyClicks(WidgetOf<QComboBox>(box).lineEdit(), "S1");
  EXPECT_EQ("System tab 1 S/-1 S1/-1", seen);
  EXPECT_EQ("S1", WidgetOf<QComboBox>(box).currentText());
  Key(box, Qt::Key_Return);
  EXPECT_TRUE(editable.IsUnloaded());
}

TEST_F(HostTest, ModalFormsNestAndGiveTheirOpenerBack) {
  std::string order;
  form.cmdOK.Click = [&] {
    frmTest inner(Host);
    Soon([&] {
      Await(Window(inner));
      Click(form.cmdCancel);  // blocked by the inner form
      order += "inner ";
      Click(inner.cmdOK);
    });
    inner.ShowModal();
    order += "back ";
    Soon([&] {
      Await(Window(form));
      Click(form.cmdCancel);
    });
  };
  Soon([&] { Click(form.cmdOK); });
  form.ShowModal();
  EXPECT_EQ("inner back ", order);
}

TEST_F(HostTest, AnErrorOutOfAHandlerEndsEveryLoopAndIsRaisedAgain) {
  form.cmdOK.Click = [&] {
    frmTest inner(Host);
    inner.cmdOK.Click = Fail;
    Soon([&] { Click(inner.cmdOK); });
    // Code that passes over errors does not keep the program alive.
    EXPECT_THROW(inner.ShowModal(), RuntimeError);
    EXPECT_THROW(Host.MsgBox("too late", ui::MsgIcon::Exclamation), RuntimeError);
  };
  Soon([&] { Click(form.cmdOK); });
  EXPECT_THROW(form.ShowModal(), RuntimeError);

  // The failure was told; what comes afterwards works again.
  frmTest next(Host);
  Soon([&] { Click(next.cmdOK); });
  next.ShowModal();
  EXPECT_TRUE(next.IsUnloaded());
}

TEST_F(HostTest, TheMainLoopEndsWithTheProgramTheLastWindowAndAnError) {
  int later = 0;
  frmTest first(Host), second(Host), third(Host);
  form.cmdCancel.Click = [&] { ++later; };
  form.cmdOK.Click = [&] {
    Soon([&] { Click(form.cmdCancel); });
    Host.EndProgram(7);
  };
  form.Show();
  Soon([&] { Click(form.cmdOK); });
  EXPECT_EQ(7, Host.Run());
  EXPECT_EQ(0, later);
  form.Unload();

  first.Show();
  second.Show();
  Soon([&] {
    Click(first.cmdOK);
    Soon([&] { Click(second.cmdOK); });
  });
  EXPECT_EQ(0, Host.Run());
  EXPECT_TRUE(first.IsUnloaded() && second.IsUnloaded());

  third.cmdOK.Click = Fail;
  third.Show();
  Soon([&] { Click(third.cmdOK); });
  EXPECT_THROW(Host.Run(), RuntimeError);
}

TEST_F(HostTest, AFormMayDieInItsOwnHandler) {
  auto dying = std::make_unique<frmTest>(Host);
  dying->cmdOK.Click = [&] { dying.reset(); };
  dying->Show();
  const QPointer<QWidget> window = &Window(*dying);
  Click(dying->cmdOK);
  Serve();
  EXPECT_EQ(nullptr, dying);
  EXPECT_TRUE(window.isNull());
}

TEST_F(HostTest, DoEventsTakesInputEveryTenMillisecondsAndPassesErrorsOn) {
  bool stopped = false;
  form.cmdCancel.Click = [&] { stopped = true; };
  form.Show();
  InHandler([&] {
    QElapsedTimer time;
    time.start();
    Soon([&] { Click(form.cmdCancel); });
    while (!stopped && time.elapsed() < 2000) Host.DoEvents();
  });
  EXPECT_TRUE(stopped);

  form.cmdCancel.Click = Fail;
  Host.DoEvents();
  Soon([&] { Click(form.cmdCancel); });
  EXPECT_NO_THROW(Host.DoEvents()) << "too soon";
  QTest::qSleep(11);
  EXPECT_THROW(Host.DoEvents(), RuntimeError);
}

TEST_F(HostTest, SleepPaintsButRunsNoHandler) {
  int ticks = 0;
  form.tmrTick.Interval = 1;
  form.tmrTick.Enabled = true;
  form.tmrTick.Tick = [&] { ++ticks; };
  form.cmdOK.Click = [&] { form.Caption = "clicked"; };
  form.Show();
  Soon([&] { Click(form.cmdOK); });
  form.Caption = "shown";
  QElapsedTimer time;
  time.start();
  Host.Sleep(40);
  EXPECT_GE(time.elapsed(), 40);
  EXPECT_EQ(0, ticks);
  EXPECT_EQ("shown", Window(form).windowTitle());
  Serve(30);
  EXPECT_GT(ticks, 0);
}

// What comes from another thread waits for a loop; painting in between runs nothing.
TEST_F(HostTest, PostedActionsRunInTheLoopAndNotWhileRepainting) {
  const auto own = std::this_thread::get_id();
  form.Show();
  std::thread([&] {
    Host.Post([&] { form.Caption = std::this_thread::get_id() == own ? "posted" : "elsewhere"; });
  }).join();
  form.Caption = "shown";
  Host.Repaint();
  EXPECT_EQ("shown", Window(form).windowTitle());
  Serve(20);
  EXPECT_EQ("posted", Window(form).windowTitle());
  frmTest other(Host);
  Host.Post(Fail);
  EXPECT_THROW(Host.ShowModal(other), RuntimeError);
}

TEST_F(HostTest, ATimerTicksWhileEnabledAndNeverIntoItself) {
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
  InHandler([&] { form.tmrTick.Enabled = true; });
  Serve(200);
  EXPECT_EQ(3, ticks);
}

TEST_F(HostTest, BoxesShowPlainTextAndAnswerByKey) {
  using enum ui::MsgButtons;
  const std::tuple<ui::MsgButtons, Qt::Key, ui::MsgResult> cases[] = {
      {Ok, Qt::Key_Escape, ui::MsgResult::Ok},           {OkCancel, Qt::Key_Return, ui::MsgResult::Ok},
      {OkCancel, Qt::Key_Escape, ui::MsgResult::Cancel}, {YesNo, Qt::Key_Return, ui::MsgResult::Yes},
      {YesNo, Qt::Key_Escape, ui::MsgResult::No},        {YesNo, Qt::Key_N, ui::MsgResult::No}};
  for (const auto& [buttons, key, result] : cases) {
    Soon([pressed = key] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      Await(*box);
      EXPECT_EQ("<b>a</b> & b", box->text());
      EXPECT_EQ(Qt::PlainText, box->textFormat());
      EXPECT_EQ(QMessageBox::Question, box->icon());
      QTest::keyClick(box, pressed, pressed == Qt::Key_N ? Qt::AltModifier : Qt::NoModifier);
    });
    EXPECT_EQ(result, Host.MsgBox("<b>a</b> & b", ui::MsgIcon::Question, buttons));
  }
}

TEST_F(HostTest, WhatWasPostponedComesBeforeTheNextClick) {
  std::string order;
  form.txtName.GotFocus = [&] { order += "focus "; };
  form.cmdOK.Click = [&] { order += "click "; };
  form.Show();
  Serve();
  order.clear();
  WidgetOf(form.cmdCancel).setFocus();
  QTest::mousePress(&WidgetOf(form.txtName), Qt::LeftButton);
  Host.SetFocus(form.txtName);
  Click(form.cmdOK);
  EXPECT_EQ("focus click ", order);
}

TEST_F(HostTest, MenusOpenDropDownAndRunTheirShortcuts) {
  frmMenus menus(Host);
  std::string order;
  menus.mnuFile.Click = [&] { menus.mnuFileRefresh.Enabled = false; };
  menus.mnuFileRefresh.Click = [&] { order += "refresh "; };
  menus.tbrMain.Buttons = {{"add", "Add", "", "add", true, false, {{"First", [&] { order += "first "; }}}}};
  menus.tbrMain.ButtonClick = [&](const std::string& key) {
    order += key + " ";
    menus.tbrMain.Button("add").Enabled = false;
  };
  menus.Show();
  auto& window = static_cast<QMainWindow&>(Window(menus));
  Await(window);
  QTest::keyClick(&window, Qt::Key_F5);
  for (QToolButton* button : window.findChildren<QToolButton*>())
    if (button->menu() != nullptr) button->menu()->actions().front()->trigger();
  QAction* add = window.findChild<QAction*>("add");
  add->trigger();
  EXPECT_FALSE(add->isEnabled());
  Soon([] { QApplication::activePopupWidget()->close(); });
  window.menuBar()->actions().front()->menu()->exec();
  EXPECT_EQ("refresh first add ", order);
  EXPECT_FALSE(window.findChild<QAction*>("mnuFileRefresh")->isEnabled());
  EXPECT_EQ(1, window.menuBar()->actions().size());
}

TEST_F(HostTest, F1OpensTheFormsTopicBesideAModalForm) {
  form.HelpContext = 120;
  Soon([&] {
    Key(form, Qt::Key_F1);
    Await(Help());
    for (const char* elsewhere : {"file:///etc/hostname", "http://127.0.0.1/"})
      EXPECT_TRUE(Help().loadResource(QTextDocument::HtmlResource, QUrl(elsewhere)).isNull()) << elsewhere;
    QTest::keyClick(Help().windowHandle(), Qt::Key_Escape);
    EXPECT_FALSE(Help().isVisible());
    Click(form.cmdOK);
  });
  form.ShowModal();
  Host.CloseHelp();
}

}  // namespace corvane::test
