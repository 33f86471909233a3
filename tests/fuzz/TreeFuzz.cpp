#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "platform/RuntimeError.h"
#include "platform/ui/Form.h"
#include "platform/ui/TreeView.h"
#include "support/ScriptedHost.h"

using namespace corvane;

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

// Every node stands once below its parent and is found by its key; nothing points to a node that went.
void CheckWhole(const ui::TreeView& tree) {
  const std::vector<ui::NodeId> all = tree.InTreeOrder();
  Require(static_cast<int>(all.size()) == tree.Count());
  for (const ui::NodeId id : all) {
    const ui::TreeNode& node = tree.Node(id);
    const auto& level = tree.ChildrenOf(node.Parent);
    Require(std::count(level.begin(), level.end(), id) == 1);
    Require(node.Key.empty() || tree.Find(node.Key) == id);
  }
  if (tree.Selected() != 0) tree.Node(tree.Selected());
}

void Act(ui::TreeView& tree, unsigned act, ui::NodeId node, const std::string& key) {
  const bool isNode = std::ranges::count(tree.InTreeOrder(), node) == 1;
  const bool isNewKey = key.empty() || tree.Find(key) == 0;
  bool isDone = true;
  try {
    if (act < 8)
      tree.Add(node, key, key, "");
    else if (act < 12)
      tree.Remove(node);
    else if (act < 15)
      tree.Select(node);
    else
      tree.SetExpanded(node, key.empty());
  } catch (const RuntimeError&) {
    isDone = false;
  }
  const bool mayBeTop = act < 8 || (act >= 12 && act < 15);
  Require(isDone == ((isNode || (node == 0 && mayBeTop)) && (act >= 8 || isNewKey)));
}

}  // namespace

// Two bytes an act: what is done with which key, and to which node.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  test::ScriptedHost host;
  ui::Form form(host, "frmFuzz");
  ui::TreeView tree(form, "tv");
  for (std::size_t i = 0; i + 1 < std::min<std::size_t>(size, 400); i += 2) {
    const std::string key(data[i] / 16U, 'k');
    if (data[i] == 0xFF)
      tree.Clear();
    else
      Act(tree, data[i] % 16U, data[i + 1] % 64, key);
    CheckWhole(tree);
  }
  return 0;
}
