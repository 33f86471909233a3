#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "platform/ui/Control.h"

namespace corvane::ui {

/// Number of a node, from 1. A number is never given again while the form lives; 0 is no node.
using NodeId = int;

struct TreeNode {
  std::string Key;
  std::string Text;
  std::string Image;
  NodeId Parent = 0;
  std::vector<NodeId> Children;
  bool Expanded = false;
};

/// A tree with text keys. The revisions let a view see nodes that came, went or changed, and a changed selection.
class TreeView : public Control {
 public:
  TreeView(Form& form, std::string_view name) : Control(form, name, ControlKind::TreeView) {}

  /// Adds a node as the last child of `parent`, or at the top with 0. A key that stands already raises `KeyNotUnique`;
  /// any number of nodes may have no key.
  NodeId Add(NodeId parent, std::string key, std::string text, std::string image);
  /// Removes a node and all below it.
  void Remove(NodeId node);
  void Clear();

  int Count() const { return static_cast<int>(nodes_.size()); }
  /// Raises `ElementNotFound` for a number that stands for no node.
  const TreeNode& Node(NodeId node) const;
  /// The node of a key, 0 when there is none.
  NodeId Find(const std::string& key) const;
  /// The nodes at the top.
  const std::vector<NodeId>& Roots() const { return roots_; }
  /// The children of a node, or the top for 0.
  const std::vector<NodeId>& ChildrenOf(NodeId node) const;
  /// All nodes, each before its children, in the order shown.
  std::vector<NodeId> InTreeOrder() const;

  /// Opens or closes a branch without running its handler.
  void SetExpanded(NodeId node, bool expanded);

  NodeId Selected() const { return selected_; }
  void Select(NodeId node);

  unsigned StructureRevision() const { return structure_; }

  /// The branch of a node was opened, or closed, by the user.
  std::function<void(NodeId node)> Expand;
  std::function<void(NodeId node)> Collapse;
  std::function<void(NodeId node)> NodeClick;
  Handler DblClick;

 private:
  TreeNode& At(NodeId node);
  void Collect(const std::vector<NodeId>& level, std::vector<NodeId>& all) const;
  void Forget(NodeId node);

  std::unordered_map<NodeId, TreeNode> nodes_;
  std::unordered_map<std::string, NodeId> keys_;
  std::vector<NodeId> roots_;
  NodeId last_ = 0;
  NodeId selected_ = 0;
  unsigned structure_ = 0;
};

}  // namespace corvane::ui
