#include "adapters/qt/bindings/TreeViewModel.h"

#include <algorithm>
#include <unordered_set>

#include "adapters/qt/Text.h"
#include "adapters/qt/look/Icons.h"

namespace corvane::qt {

// Brothers whose order has changed are rare; the whole tree is then taken over anew.
void TreeViewModel::Sync() {
  if (AllInOrder()) {
    SyncChildren(0);
    return;
  }
  beginResetModel();
  shown_.clear();
  shown_[0] = {};
  endResetModel();
  SyncChildren(0);
}

bool TreeViewModel::AllInOrder() const {
  const std::vector<ui::NodeId> nodes = tree_.InTreeOrder();
  return InOrder(0) && std::all_of(nodes.begin(), nodes.end(), [this](ui::NodeId node) { return InOrder(node); });
}

// What is shown and still there stands in the same order as in the tree.
bool TreeViewModel::InOrder(ui::NodeId parent) const {
  const auto shown = shown_.find(parent);
  if (shown == shown_.end()) return true;
  int last = -1;
  for (const ui::NodeId node : tree_.ChildrenOf(parent)) {
    const auto place = shown_.find(node);
    if (place == shown_.end() || place->second.Parent != parent) continue;
    if (place->second.Row <= last) return false;
    last = place->second.Row;
  }
  return true;
}

void TreeViewModel::SyncChildren(ui::NodeId parent) {
  RemoveGone(parent);
  InsertNew(parent);
  RefreshTexts(parent);
  const std::vector<ui::NodeId> children = shown_[parent].Children;
  for (const ui::NodeId child : children) SyncChildren(child);
}

void TreeViewModel::RemoveGone(ui::NodeId parent) {
  const auto& wanted = tree_.ChildrenOf(parent);
  const std::unordered_set<ui::NodeId> kept(wanted.begin(), wanted.end());
  std::vector<ui::NodeId>& children = shown_[parent].Children;
  for (int last = static_cast<int>(children.size()) - 1; last >= 0; --last) {
    if (kept.count(children[static_cast<std::size_t>(last)]) > 0) continue;
    int first = last;
    while (first > 0 && kept.count(children[static_cast<std::size_t>(first - 1)]) == 0) --first;
    beginRemoveRows(IndexOf(parent), first, last);
    for (int row = first; row <= last; ++row) Forget(children[static_cast<std::size_t>(row)]);
    children.erase(children.begin() + first, children.begin() + last + 1);
    Number(parent);
    endRemoveRows();
    last = first;
  }
}

void TreeViewModel::InsertNew(ui::NodeId parent) {
  const auto& wanted = tree_.ChildrenOf(parent);
  for (std::size_t row = 0; row < wanted.size(); ++row) {
    if (shown_.count(wanted[row]) > 0) continue;
    std::size_t end = row + 1;
    while (end < wanted.size() && shown_.count(wanted[end]) == 0) ++end;
    beginInsertRows(IndexOf(parent), static_cast<int>(row), static_cast<int>(end) - 1);
    for (std::size_t i = row; i < end; ++i) {
      const ui::TreeNode& node = tree_.Node(wanted[i]);
      shown_[wanted[i]] = {parent, 0, node.Text, node.Image, {}};
    }
    std::vector<ui::NodeId>& children = shown_[parent].Children;
    const auto at = [](auto& list, std::size_t place) { return list.begin() + static_cast<std::ptrdiff_t>(place); };
    children.insert(at(children, row), at(wanted, row), at(wanted, end));
    Number(parent);
    endInsertRows();
    row = end - 1;
  }
}

void TreeViewModel::RefreshTexts(ui::NodeId parent) {
  for (const ui::NodeId child : shown_[parent].Children) {
    const ui::TreeNode& node = tree_.Node(child);
    Shown& shown = shown_[child];
    if (shown.Text == node.Text && shown.Image == node.Image) continue;
    shown.Text = node.Text;
    shown.Image = node.Image;
    emit dataChanged(IndexOf(child), IndexOf(child));
  }
}

void TreeViewModel::Forget(ui::NodeId node) {
  for (const ui::NodeId child : shown_[node].Children) Forget(child);
  shown_.erase(node);
}

void TreeViewModel::Number(ui::NodeId parent) {
  int row = 0;
  for (const ui::NodeId child : shown_[parent].Children) shown_[child].Row = row++;
}

QModelIndex TreeViewModel::IndexOf(ui::NodeId node) const {
  const auto found = shown_.find(node);
  if (node == 0 || found == shown_.end()) return {};
  return createIndex(found->second.Row, 0, static_cast<quintptr>(node));
}

QModelIndex TreeViewModel::index(int row, int column, const QModelIndex& parent) const {
  const auto found = shown_.find(NodeAt(parent));
  if (column != 0 || row < 0 || found == shown_.end()) return {};
  const auto& children = found->second.Children;
  if (row >= static_cast<int>(children.size())) return {};
  return createIndex(row, 0, static_cast<quintptr>(children[static_cast<std::size_t>(row)]));
}

QModelIndex TreeViewModel::parent(const QModelIndex& index) const {
  const auto found = shown_.find(NodeAt(index));
  return found == shown_.end() ? QModelIndex() : IndexOf(found->second.Parent);
}

int TreeViewModel::rowCount(const QModelIndex& parent) const {
  const auto found = shown_.find(NodeAt(parent));
  return found == shown_.end() ? 0 : static_cast<int>(found->second.Children.size());
}

QVariant TreeViewModel::data(const QModelIndex& index, int role) const {
  const auto found = shown_.find(NodeAt(index));
  if (!index.isValid() || found == shown_.end()) return {};
  if (role == Qt::DisplayRole || role == Qt::EditRole) return ToQt(found->second.Text);
  if (role == Qt::DecorationRole) return icons::Variant(found->second.Image);
  return {};
}

Qt::ItemFlags TreeViewModel::flags(const QModelIndex& index) const {
  const Qt::ItemFlags flags = QAbstractItemModel::flags(index);
  return index.isValid() && NodeAt(index) == tree_.EditedNode() ? flags | Qt::ItemIsEditable : flags;
}

bool TreeViewModel::setData(const QModelIndex&, const QVariant& value, int role) {
  if (role != Qt::EditRole || !LabelEdited) return false;
  LabelEdited(FromQt(value.toString()));
  return true;
}

}  // namespace corvane::qt
