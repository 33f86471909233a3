#include "adapters/qt/bindings/TreeViewBinding.h"

#include <QHeaderView>
#include <QTreeView>

#include "adapters/qt/bindings/LabelDelegate.h"

namespace corvane::qt {

TreeViewBinding::TreeViewBinding(FormView& view, ui::TreeView& control, QTreeView* tree)
    : ItemViewBinding(view, control, tree), control_(control), model_(control, tree) {
  tree->setModel(&model_);
  tree->setHeaderHidden(true);
  tree->setItemDelegate(new LabelDelegate(tree));
  connect(tree->selectionModel(), &QItemSelectionModel::currentChanged, this, &TreeViewBinding::CurrentChanged);
  connect(tree, &QTreeView::expanded, this, [this](const QModelIndex& index) { Branched(index, true); });
  connect(tree, &QTreeView::collapsed, this, [this](const QModelIndex& index) { Branched(index, false); });
  connect(tree, &QTreeView::clicked, this, &TreeViewBinding::FireNodeClick);
  connect(tree, &QTreeView::doubleClicked, this, [this] { Postpone(control_.DblClick); });
  // The editor is still there: what it asks may show a box only after it.
  model_.LabelEdited = [this](const std::string& text) { Postpone([this, text] { control_.EndLabelEdit(text); }); };
  connect(tree->itemDelegate(), &QAbstractItemDelegate::closeEditor, this,
          [this] { Postpone([this] { control_.CancelLabelEdit(); }); });
}

void TreeViewBinding::Update() {
  if (structure_ != control_.StructureRevision()) {
    structure_ = control_.StructureRevision();
    model_.Sync();
    UpdateBranches();
  }
  UpdateSelection();
  UpdateLabelEdit();
}

// Closing the editor comes back as the user's giving up, which is no news then.
void TreeViewBinding::UpdateLabelEdit() {
  if (edited_ == control_.EditedNode()) return;
  edited_ = control_.EditedNode();
  if (edited_ == 0) return;
  Tree().setFocus(Qt::OtherFocusReason);
  Tree().edit(model_.IndexOf(edited_));
}

void TreeViewBinding::UpdateBranches() {
  for (const ui::NodeId node : control_.InTreeOrder()) {
    const QModelIndex index = model_.IndexOf(node);
    const bool expanded = control_.Node(node).Expanded;
    if (Tree().isExpanded(index) != expanded) Tree().setExpanded(index, expanded);
  }
}

void TreeViewBinding::UpdateSelection() {
  const QModelIndex wanted = model_.IndexOf(control_.Selected());
  if (wanted == Tree().currentIndex() && Tree().selectionModel()->isSelected(wanted) == wanted.isValid()) return;
  Tree().selectionModel()->setCurrentIndex(wanted, QItemSelectionModel::ClearAndSelect);
  if (!wanted.isValid())
    Tree().selectionModel()->clear();
  else
    Tree().scrollTo(wanted);
}

void TreeViewBinding::CurrentChanged(const QModelIndex& current) {
  if (!IsUsers() || !current.isValid()) return;
  control_.Select(model_.NodeAt(current));
  if (ByKey()) FireNodeClick(current);
}

// The handler runs at once: a branch is filled by it and must not be painted empty first.
void TreeViewBinding::Branched(const QModelIndex& index, bool expanded) {
  if (!IsUsers()) return;
  const ui::NodeId node = model_.NodeAt(index);
  control_.SetExpanded(node, expanded);
  if (const auto handler = expanded ? control_.Expand : control_.Collapse) Fire([handler, node] { handler(node); });
}

void TreeViewBinding::FireNodeClick(const QModelIndex& index) {
  if (!index.isValid() || !control_.NodeClick) return;
  Postpone([this, node = model_.NodeAt(index)] {
    if (model_.IndexOf(node).isValid()) control_.NodeClick(node);
  });
}

}  // namespace corvane::qt
