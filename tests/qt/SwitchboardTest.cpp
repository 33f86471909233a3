#include "support/Switchboard.h"

#include <QMenu>
#include <QMenuBar>
#include <QTabWidget>
#include <QTimer>
#include <QToolBar>

#include "Hands.h"
#include "StartedConsole.h"

namespace corvane::test {

class SwitchboardTest : public StartedConsole {
 protected:
  SwitchboardTest() {
    State().SaveSetting("Created", "1");
    State().ConfigConnection->Execute(
        "INSERT INTO RegisteredServers VALUES ('MERDC011', 'MERIDIAN', 'MERDC01', 1, 0, False, 0, 0)");
    State().ConfigConnection->Execute("INSERT INTO SyslogDevices VALUES ('Switch', '192.0.2.7')");
    Main().RefillLogs(false);
    Serve();
  }

  QWidget& Window() { return StartedConsole::Window(Main()); }
  static void Serve() { QTest::qWait(20); }

  void ClickRow(Qt::MouseButton button) {
    const auto& list = *Window().findChild<QTreeView*>(Main().tabMain.Tab == 0 ? "lvwComputers" : "lvwSyslogs");
    ClickAt(list, MiddleOf(list, list.model()->index(0, 0)), Qt::NoModifier, button);
    Serve();
  }

  /// Acts, and gives the name of the form that comes up, which is closed again.
  std::string Opened(const std::function<void()>& act) {
    std::string opened;
    QTimer closing;
    QObject::connect(&closing, &QTimer::timeout, [&] {
      QWidget* top = QApplication::activeModalWidget();
      if (top == nullptr) return;
      opened = top->objectName().toStdString();
      QTest::keyClick(top, Qt::Key_Escape);
    });
    closing.start(30);
    act();
    for (int i = 0; i < 300 && (opened.empty() || QApplication::activeModalWidget() != nullptr); ++i) QTest::qWait(10);
    return opened;
  }

  void ClickTool(const std::string& key) {
    auto& bar = *Window().findChild<QToolBar*>("tbrMain");
    auto* action = Window().findChild<QAction*>(QString::fromStdString(key));
    QTest::mouseClick(bar.widgetForAction(action), Qt::LeftButton, Qt::NoModifier, QPoint(8, 8));
  }

  const ui::MenuItem& Item(const std::string& name) {
    for (const ui::Control* control : Main().Controls())
      if (control->Kind() == ui::ControlKind::MenuItem && control->Name() == name)
        return static_cast<const ui::MenuItem&>(*control);
    throw std::runtime_error("no item " + name);
  }

  QAction* ActionOf(const std::string& name) {
    for (QAction* action : Window().findChildren<QAction*>())
      if (action->objectName() == QString::fromStdString(name) && action->menu() == nullptr) return action;
    throw std::runtime_error("no action " + name);
  }

  // A menu on the bar opens on its own, and one within it when it is reached; a pop-up menu runs until something of it
  // is chosen.
  void ClickItem(const std::string& name) {
    const auto choose = [&] {
      auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      ASSERT_NE(nullptr, menu) << name;
      QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, menu->actionGeometry(ActionOf(name)).center());
    };
    const ui::MenuItem* menu = Item(name).Menu;
    if (menu->Popup) {
      QTimer::singleShot(50, qApp, choose);
      return ClickRow(Qt::RightButton);
    }
    auto& bar = *Window().findChild<QMenuBar*>();
    for (QAction* action : bar.actions())
      if (action->objectName().toStdString() == (menu->Menu != nullptr ? menu->Menu : menu)->Name())
        QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier, bar.actionGeometry(action).center());
    Serve();
    if (menu->Menu != nullptr)
      for (QAction* action : Window().findChildren<QAction*>())
        if (action->objectName().toStdString() == menu->Name() && action->menu() != nullptr)
          qobject_cast<QMenu*>(QApplication::activePopupWidget())->setActiveAction(action);
    Serve();
    choose();
  }
};

TEST_F(SwitchboardTest, EveryClickOpensItsScreen) {
  for (const Command& command : Switchboard) {
    if (command.Form.empty()) continue;
    Window().findChild<QTabWidget*>("tabMain")->setCurrentIndex(command.IsForSyslogs() ? 1 : 0);
    Serve();
    const auto opens = [&](const std::string& way, const std::function<void()>& act) {
      ClickRow(Qt::LeftButton);
      EXPECT_EQ(command.Form, Opened(act)) << way;
    };
    if (!command.Key.empty()) opens(command.Key, [&] { ClickTool(command.Key); });
    for (const std::string& name : command.Items) opens(name, [&] { ClickItem(name); });
  }
}

}  // namespace corvane::test
