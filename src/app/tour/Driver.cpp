#include "app/tour/Driver.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>
#include <QToolBar>
#include <QToolButton>

namespace corvane::tour {
namespace {

QModelIndex Child(const QAbstractItemView& view, const QModelIndex& parent, const QString& text) {
  const QAbstractItemModel& model = *view.model();
  for (int row = 0; row < model.rowCount(parent); ++row) {
    const QModelIndex index = model.index(row, 0, parent);
    if (index.data().toString() == text) return index;
  }
  throw Failure(view.objectName().toStdString() + " does not show " + text.toStdString());
}

QPoint CenterOf(const QAbstractItemView& view, const QModelIndex& index) {
  const QRect cell = view.visualRect(index);
  return {cell.left() + std::min(cell.width() / 2, 40), cell.center().y()};
}

}  // namespace

QWidget* Driver::Window(const QString& form) {
  for (QWidget* window : QApplication::topLevelWidgets())
    if (window->isVisible() && window->objectName() == form) return window;
  return nullptr;
}

QWidget* Driver::FindWidget(const QString& form, const QString& name) {
  const QWidget* window = Window(form);
  return window == nullptr ? nullptr : window->findChild<QWidget*>(name);
}

void Driver::Click(const QString& form, const QString& name) {
  auto& widget = Find<QWidget>(form, name);
  if (!widget.isEnabled()) throw Failure(name.toStdString() + " is disabled");
  // A choice takes clicks on its mark and its words alone, and may be wider.
  const bool isChoice = qobject_cast<QRadioButton*>(&widget) || qobject_cast<QCheckBox*>(&widget);
  QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, isChoice ? QPoint(8, widget.height() / 2) : QPoint());
}

void Driver::ClickTool(const QString& form, const QString& key) {
  auto& bar = Find<QToolBar>(form, "tbrMain");
  for (QAction* action : bar.actions())
    if (action->data().toString() == key || action->objectName() == key) {
      QTest::mouseClick(bar.widgetForAction(action), Qt::LeftButton);
      return;
    }
  throw Failure("no tool button " + key.toStdString());
}

void Driver::BringToFront(const QString& form, int tab) {
  QTabBar& bar = *Find<QTabWidget>(form, "tabMain").tabBar();
  QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier, bar.tabRect(tab).center());
}

void Driver::Choose(QComboBox& box, const QString& text) {
  const int wanted = box.findText(text, Qt::MatchExactly);
  if (wanted < 0) throw Failure("no entry " + text.toStdString());
  box.setFocus();
  while (box.currentIndex() != wanted) QTest::keyClick(&box, box.currentIndex() < wanted ? Qt::Key_Down : Qt::Key_Up);
}

void Driver::Type(QComboBox& box, const QString& text) { Type(*box.lineEdit(), text); }

void Driver::Type(QLineEdit& line, const QString& text) {
  line.setFocus();
  line.selectAll();
  QTest::keyClicks(&line, text);
}

QMessageBox* Driver::Box() { return qobject_cast<QMessageBox*>(QApplication::activeModalWidget()); }

QModelIndex Driver::Pick(QAbstractItemView& view, const QStringList& path, Qt::KeyboardModifiers keys) {
  QModelIndex index;
  for (const QString& text : path) {
    // A branch shows a stand-in until it is opened; the key opens it as a user would.
    if (index.isValid()) QTest::keyClick(&view, Qt::Key_Right);
    index = Child(view, index, text);
    view.scrollTo(index);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, keys, CenterOf(view, index));
  }
  return index;
}

void Driver::Drag(QAbstractItemView& from, const QModelIndex& index, QWidget& to) {
  const QPoint start = CenterOf(from, index);
  const QPoint end = to.mapTo(to.window(), to.rect().center());
  const auto local = [&](const QPoint& point) { return from.viewport()->mapFrom(from.window(), point); };
  QTest::mousePress(from.viewport(), Qt::LeftButton, Qt::NoModifier, start);
  const QPoint way = local(end) - start;
  for (int step = 1; step <= 8; ++step) QTest::mouseMove(from.viewport(), start + way * step / 8);
  QTest::mouseRelease(from.viewport(), Qt::LeftButton, Qt::NoModifier, local(end));
}

void Driver::DoubleClick(QAbstractItemView& view, int row) {
  const QModelIndex index = view.model()->index(row, 0);
  QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, CenterOf(view, index));
  QTest::mouseDClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, CenterOf(view, index));
}

QString Driver::Texts(const QAbstractItemView& view) {
  QStringList texts;
  for (int row = 0; row < view.model()->rowCount(); ++row) texts += view.model()->index(row, 0).data().toString();
  return texts.join(", ");
}

}  // namespace corvane::tour
