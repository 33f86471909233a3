#pragma once

#include "adapters/qt/bindings/ItemViewBinding.h"
#include "adapters/qt/bindings/TreeViewModel.h"

namespace corvane::qt {

class TreeViewBinding : public ItemViewBinding {
 public:
  TreeViewBinding(FormView& view, ui::TreeView& control, QTreeView* tree);

 protected:
  void Update() override;

 private:
  void UpdateBranches();
  void UpdateSelection();
  void CurrentChanged(const QModelIndex& current);
  void Branched(const QModelIndex& index, bool expanded);
  void FireNodeClick(const QModelIndex& index);
  void UpdateLabelEdit();

  ui::TreeView& control_;
  TreeViewModel model_;
  unsigned structure_ = 0;
  /// The node whose text the widget lets the user change.
  ui::NodeId edited_ = 0;
};

}  // namespace corvane::qt
