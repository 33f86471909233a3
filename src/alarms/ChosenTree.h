#pragma once

#include <string>
#include <string_view>

#include "platform/ui/TreeView.h"

namespace corvane {

class modMain;

/// Which node of a chosen tree a key stands for, and the parts that are read out of it.
namespace chosenkey {
bool IsMember(std::string_view key);
bool IsBundle(std::string_view key);
/// The id of a bundle, from its node in a tree for a log or from its row in a list of bundles.
std::string BundleId(std::string_view key);
/// The category of a single alarm: the rest of its key behind the four digits and the underscore.
std::string CategoryIndex(std::string_view key);
/// In a tree for an export: the name that a bundle is written under, and the bundle and the number of a member.
std::string WrittenName(std::string_view bundleKey);
std::string BundleOfMember(std::string_view memberKey);
std::string AlarmOfMember(std::string_view memberKey);
}  // namespace chosenkey

/// Name of an OS class by the number that categories carry.
std::string OsNameOf(std::string_view osNumber);

/// What was chosen: single alarms, and bundles with their members below them. What is chosen twice, and the keys of
/// bundles, differ with the use.
class ChosenTree {
 public:
  /// For a log, to which an alarm's name is the alarm: one that stands anywhere in the tree is refused. The screen
  /// shares one flag over its chosen trees: only the first duplicate is told to the user.
  ChosenTree(modMain& main, ui::TreeView& tree, bool& duplicateReported)
      : main_(main), tree_(tree), duplicateReported_(&duplicateReported) {}
  /// For an export: a bundle that stands already is refused each time, a single alarm is passed over in silence. An
  /// alarm below a bundle may be chosen by itself as well.
  ChosenTree(modMain& main, ui::TreeView& tree) : main_(main), tree_(tree) {}

  /// Adds one alarm by its name, unless it is a duplicate. Any error adds nothing and says nothing.
  void AddAlarmNode(const std::string& name, const std::string& osName);
  /// Adds a bundle with its members, unless it is a duplicate.
  void AddBundleNode(const std::string& name, const std::string& id);
  /// Removes the selected node with all below it.
  void RemoveSelected();
  /// True unless the node is a member of a bundle, which cannot be removed on its own.
  bool MayRemove(ui::NodeId node) const;

 private:
  bool IsForLog() const { return duplicateReported_ != nullptr; }
  bool HoldsName(const std::string& name) const;
  bool HoldsSingle(const std::string& name, const std::string& categoryIndex) const;
  void Refuse(const char* message);
  std::string FindCategoryIndex(const std::string& name, const std::string& osName);
  std::string NewAlarmKey(const std::string& categoryIndex) const;

  modMain& main_;
  ui::TreeView& tree_;
  /// Null in a tree for an export.
  bool* duplicateReported_ = nullptr;
};

/// True when a node at or behind `start` on its level, or below one of these, has the text. Case does not matter.
bool FindNodeText(const ui::TreeView& tree, ui::NodeId start, std::string_view text);

}  // namespace corvane
