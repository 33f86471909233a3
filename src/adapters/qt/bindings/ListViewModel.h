#pragma once

#include <QAbstractTableModel>

#include "platform/ui/ListView.h"

namespace corvane::qt {

/// The rows of a list, read where they stand. It is told when to look at them anew.
class ListViewModel : public QAbstractTableModel {
 public:
  explicit ListViewModel(const ui::ListView& list, QObject* parent) : QAbstractTableModel(parent), list_(list) {}

  /// Takes over the present rows and columns.
  void Sync();
  /// Takes over new headers of the same columns.
  void SyncHeaders();

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows_; }
  int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : columns_; }
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  const ui::ListView& list_;
  int rows_ = 0;
  int columns_ = 0;
};

}  // namespace corvane::qt
