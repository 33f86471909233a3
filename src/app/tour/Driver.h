#pragma once

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QString>
#include <QStringList>
#include <QWidget>
#include <stdexcept>

namespace corvane::tour {

/// What stops a tour: something on the screen is not as the script needs it.
struct Failure : std::runtime_error {
  using runtime_error::runtime_error;
};

/// Acts on the windows of the program as a user does, with mouse and keyboard events.
class Driver {
 public:
  /// The shown window of a form; null when it is not on the screen.
  static QWidget* Window(const QString& form);
  /// A widget of a shown form. Raises `Failure` when there is none.
  template <class Widget>
  static Widget& Find(const QString& form, const QString& name) {
    auto* widget = dynamic_cast<Widget*>(FindWidget(form, name));
    if (widget == nullptr) throw Failure(form.toStdString() + " has no fitting " + name.toStdString());
    return *widget;
  }

  static void Click(const QString& form, const QString& name);
  static void ClickTool(const QString& form, const QString& key);
  static void BringToFront(const QString& form, int tab);
  /// Chooses an entry of a box with the keyboard.
  static void Choose(QComboBox& box, const QString& text);
  static void Type(QComboBox& box, const QString& text);
  static void Type(QLineEdit& line, const QString& text);
  /// The message box on the screen; null when there is none.
  static QMessageBox* Box();
  /// Opens branches with the keyboard and clicks the last node of a path.
  static QModelIndex Pick(QAbstractItemView& view, const QStringList& path,
                          Qt::KeyboardModifiers keys = Qt::NoModifier);
  /// Presses on an entry, moves to another view and releases there.
  static void Drag(QAbstractItemView& from, const QModelIndex& index, QWidget& to);
  static void DoubleClick(QAbstractItemView& view, int row);
  /// Texts of the first column of a view's top level, parted by ", ".
  static QString Texts(const QAbstractItemView& view);

 private:
  static QWidget* FindWidget(const QString& form, const QString& name);
};

}  // namespace corvane::tour
