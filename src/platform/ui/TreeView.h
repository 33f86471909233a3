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

  /// Gives a node another key. One that stands already raises `KeyNotUnique`.
  void SetKey(NodeId node, std::string key);
  void SetText(NodeId node, std::string text);

  /// Opens or closes a branch without running its handler.
  void SetExpanded(NodeId node, bool expanded);

  NodeId Selected() const { return selected_; }
  void Select(NodeId node);

  unsigned StructureRevision() const { return structure_; }

  /// Lets the user change the text of a node in its place. `AfterLabelEdit` runs when the user is done.
  void StartLabelEdit(NodeId node);
  /// The node whose text is being changed; 0 for none.
  NodeId EditedNode() const { return edited_; }
  /// What the host calls when the user is done: runs `AfterLabelEdit` and takes the text over when it agrees.
  void EndLabelEdit(const std::string& text);
  /// What the host calls when the user gave up: nothing changes.
  void CancelLabelEdit() { edited_ = 0; }

  /// The branch of a node was opened, or closed, by the user.
  std::function<void(NodeId node)> Expand;
  std::function<void(NodeId node)> Collapse;
  std::function<void(NodeId node)> NodeClick;
  Handler DblClick;
  /// The user is done with the text of a node. False keeps the old one. The node still has it meanwhile.
  std::function<bool(NodeId node, const std::string& text)> AfterLabelEdit;

 private:
  TreeNode& At(NodeId node);
  void Collect(const std::vector<NodeId>& level, std::vector<NodeId>& all) const;
  void Forget(NodeId node);

  std::unordered_map<NodeId, TreeNode> nodes_;
  std::unordered_map<std::string, NodeId> keys_;
  std::vector<NodeId> roots_;
  NodeId last_ = 0;
  NodeId selected_ = 0;
  NodeId edited_ = 0;
  unsigned structure_ = 0;
};

}  // namespace corvane::ui
