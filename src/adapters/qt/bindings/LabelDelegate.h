#pragma once

#include <QStyledItemDelegate>

namespace corvane::qt {

/// Lets the text of a row be changed in its place, in a box that hides what stands below it.
class LabelDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QWidget* editor = QStyledItemDelegate::createEditor(parent, option, index);
    editor->setAutoFillBackground(true);
    return editor;
  }
};

}  // namespace corvane::qt
