#pragma once

#include <string>
#include <string_view>

#include "platform/ui/TreeView.h"

namespace corvane {

class modMain;

/// Which node of a chosen tree a key stands for, and the parts that the save reads out of it.
namespace chosenkey {
bool IsMember(std::string_view key);
bool IsBundle(std::string_view key);
/// The id of a bundle, from its node or from its row in a list of bundles.
std::string BundleId(std::string_view key);
/// The category of a single alarm: the rest of its key behind the four digits and the underscore.
std::string CategoryIndex(std::string_view key);
}  // namespace chosenkey

/// Name of an OS class by the number that categories carry.
std::string OsNameOf(std::string_view osNumber);

/// What was chosen for a log: single alarms, and bundles with their members below them. The screen shares one flag over
/// its chosen trees: only the first duplicate is told to the user.
class ChosenTree {
 public:
  ChosenTree(modMain& main, ui::TreeView& tree, bool& duplicateReported)
      : main_(main), tree_(tree), duplicateReported_(duplicateReported) {}

  /// Adds one alarm by its name. A name that stands in the tree already is refused; any error adds nothing and says
  /// nothing.
  void AddAlarmNode(const std::string& name, const std::string& osName);
  /// Adds a bundle with its members. A name that stands in the tree already is refused.
  void AddBundleNode(const std::string& name, const std::string& id);
  /// Removes the selected node with all below it.
  void RemoveSelected();
  /// True unless the node is a member of a bundle, which cannot be removed on its own.
  bool MayRemove(ui::NodeId node) const;

 private:
  bool Refuses(const std::string& name, const char* message);
  std::string NewAlarmKey(const std::string& name, const std::string& osName);

  modMain& main_;
  ui::TreeView& tree_;
  bool& duplicateReported_;
};

/// True when a node at or behind `start` on its level, or below one of these, has the text. Case does not matter.
bool FindNodeText(const ui::TreeView& tree, ui::NodeId start, std::string_view text);

}  // namespace corvane
