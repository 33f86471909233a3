#pragma once

#include <QAbstractItemModel>
#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/ui/TreeView.h"

namespace corvane::qt {

/// The nodes of a tree as they were at the last look. Indexes carry a node's number, so that none can point at a node
/// that is gone.
class TreeViewModel : public QAbstractItemModel {
 public:
  TreeViewModel(const ui::TreeView& tree, QObject* parent) : QAbstractItemModel(parent), tree_(tree) {}

  /// Takes over what came, went or changed, and leaves the rest as it is shown.
  void Sync();

  ui::NodeId NodeAt(const QModelIndex& index) const { return static_cast<ui::NodeId>(index.internalId()); }
  /// The index of a node; invalid for one that is not shown.
  QModelIndex IndexOf(ui::NodeId node) const;

  QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  QModelIndex parent(const QModelIndex& index) const override;
  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& = {}) const override { return 1; }
  QVariant data(const QModelIndex& index, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;

  /// What the user wrote in the place of a node's text.
  std::function<void(const std::string& text)> LabelEdited;

 private:
  struct Shown {
    ui::NodeId Parent = 0;
    int Row = 0;
    std::string Text;
    std::string Image;
    std::vector<ui::NodeId> Children;
  };

  void SyncChildren(ui::NodeId parent);
  void RemoveGone(ui::NodeId parent);
  void InsertNew(ui::NodeId parent);
  void RefreshTexts(ui::NodeId parent);
  void Forget(ui::NodeId node);
  void Number(ui::NodeId parent);
  bool InOrder(ui::NodeId parent) const;
  bool AllInOrder() const;

  const ui::TreeView& tree_;
  /// By number; 0 stands for the root, which is not shown itself.
  std::unordered_map<ui::NodeId, Shown> shown_{{0, {}}};
};

}  // namespace corvane::qt
