#include "platform/ui/TreeView.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "platform/RuntimeError.h"

namespace corvane::ui {

NodeId TreeView::Add(NodeId parent, std::string key, std::string text, std::string image) {
  if (parent != 0) Node(parent);
  if (!key.empty() && !keys_.emplace(key, last_ + 1).second)
    throw RuntimeError(errors::KeyNotUnique, "Key is not unique in collection");
  const NodeId id = ++last_;
  nodes_.emplace(id, TreeNode{std::move(key), std::move(text), std::move(image), parent, {}, false});
  (parent == 0 ? roots_ : At(parent).Children).push_back(id);
  ++structure_;
  return id;
}

// A branch is mostly emptied from its end.
void TreeView::Remove(NodeId node) {
  const NodeId parent = Node(node).Parent;
  std::vector<NodeId>& level = parent == 0 ? roots_ : At(parent).Children;
  level.erase(std::prev(std::find(level.rbegin(), level.rend(), node).base()));
  Forget(node);
  ++structure_;
}

void TreeView::Clear() {
  nodes_.clear();
  keys_.clear();
  roots_.clear();
  selected_ = 0;
  edited_ = 0;
  ++structure_;
}

const TreeNode& TreeView::Node(NodeId node) const {
  const auto found = nodes_.find(node);
  if (found == nodes_.end()) throw RuntimeError(errors::ElementNotFound, "Element not found");
  return found->second;
}

TreeNode& TreeView::At(NodeId node) {
  const auto found = nodes_.find(node);
  if (found == nodes_.end()) throw RuntimeError(errors::ElementNotFound, "Element not found");
  return found->second;
}

NodeId TreeView::Find(const std::string& key) const {
  const auto found = keys_.find(key);
  return found == keys_.end() ? 0 : found->second;
}

const std::vector<NodeId>& TreeView::ChildrenOf(NodeId node) const { return node == 0 ? roots_ : Node(node).Children; }

std::vector<NodeId> TreeView::InTreeOrder() const {
  std::vector<NodeId> all;
  all.reserve(nodes_.size());
  Collect(roots_, all);
  return all;
}

void TreeView::Collect(const std::vector<NodeId>& level, std::vector<NodeId>& all) const {
  for (const NodeId node : level) {
    all.push_back(node);
    Collect(Node(node).Children, all);
  }
}

void TreeView::SetKey(NodeId node, std::string key) {
  TreeNode& changed = At(node);
  if (key == changed.Key) return;
  if (!key.empty() && !keys_.emplace(key, node).second)
    throw RuntimeError(errors::KeyNotUnique, "Key is not unique in collection");
  keys_.erase(changed.Key);
  changed.Key = std::move(key);
}

void TreeView::SetText(NodeId node, std::string text) {
  At(node).Text = std::move(text);
  ++structure_;
}

void TreeView::StartLabelEdit(NodeId node) {
  Node(node);
  edited_ = node;
}

// The handler may remove the node or start another edit.
void TreeView::EndLabelEdit(const std::string& text) {
  const NodeId node = std::exchange(edited_, 0);
  if (node == 0) return;
  if (AfterLabelEdit && !AfterLabelEdit(node, text)) return;
  if (nodes_.count(node) > 0) SetText(node, text);
}

void TreeView::SetExpanded(NodeId node, bool expanded) {
  At(node).Expanded = expanded;
  ++structure_;
}

void TreeView::Select(NodeId node) {
  if (node != 0) Node(node);
  selected_ = node;
}

void TreeView::Forget(NodeId node) {
  for (const NodeId child : Node(node).Children) Forget(child);
  if (selected_ == node) selected_ = 0;
  if (edited_ == node) edited_ = 0;
  if (const std::string& key = Node(node).Key; !key.empty()) keys_.erase(key);
  nodes_.erase(node);
}

}  // namespace corvane::ui
