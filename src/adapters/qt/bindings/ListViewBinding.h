#pragma once

#include <vector>

#include "adapters/qt/bindings/ItemViewBinding.h"
#include "adapters/qt/bindings/ListViewModel.h"

class QItemSelection;

namespace corvane::qt {

class ListViewBinding : public ItemViewBinding {
 public:
  ListViewBinding(FormView& view, ui::ListView& control, QTreeView* list);

 protected:
  void Update() override;
  void MouseReleased(Qt::MouseButton button) override;

 private:
  void UpdateColumns();
  void UpdateRows();
  void UpdateSelection();
  void UpdateSortIndicator();
  void ShowSelection();

  void SelectionChanged(const QItemSelection& selected, const QItemSelection& deselected);
  void CurrentChanged(const QModelIndex& current);
  void FireItemClick(const QModelIndex& index);

  ui::ListView& control_;
  ListViewModel model_;
  std::vector<ui::ListColumn> columns_;
  unsigned structure_ = 0;
  unsigned selection_ = 0;
  /// The column whose header was clicked last; it carries the sort mark when a hidden column is the key.
  int clickedColumn_ = 0;
};

}  // namespace corvane::qt
