#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/ui/TreeView.h"

namespace corvane {

class modMain;

/// Pictures of the catalogue's levels; code tells a category by its picture.
namespace alarmimage {
inline constexpr const char* Os = "os";
inline constexpr const char* LogType = "editlog";
inline constexpr const char* Category = "alarmcat";
inline constexpr const char* Alarm = "alarm";
inline constexpr const char* Bundle = "alarmgroup";
}  // namespace alarmimage

/// What a node of the catalogue is, told by its key alone.
enum class AlarmLevel { Os, LogType, Category, Alarm };
AlarmLevel LevelOf(std::string_view key);

/// The OS class and the index of a category, out of its key.
std::string OsIndexOfCategory(std::string_view key);
std::string IndexOfCategory(std::string_view key);

/// The key of a category, and that of the dummy below a branch.
std::string CategoryKey(std::string_view osIndex, std::string_view categoryIndex);
std::string DummyKey(std::string_view key);

/// All that follows the last backslash of a key.
std::string GetLastKeyPart(std::string_view key);

/// The alarm catalogue as a tree of four levels: OS class, log type, category, alarm. A collapsed branch holds one
/// dummy node and nothing else, so every opening reads the database afresh. Database failures are raised and leave the
/// nodes added so far.
class AlarmTree {
 public:
  AlarmTree(modMain& main, ui::TreeView& tree) : main_(main), tree_(tree) {}

  /// Empties the tree and adds the OS classes.
  void FillOSNodes();
  /// What the tree does when a branch is opened or closed. Alarms are passed over.
  void Expand(ui::NodeId node);
  void Collapse(ui::NodeId node);
  /// Reads a branch afresh and leaves it open. An alarm is passed over.
  void Refresh(ui::NodeId node);

  /// Empties the tree and fills it with all levels at once, without dummies: opening and closing a branch is then the
  /// view's affair alone.
  void FillWhole();

  /// The alarms that a picked node stands for, by name and OS class: an alarm for itself, a category for all in it,
  /// which are read for this if need be. A node further up stands for none.
  void ForEachPicked(ui::NodeId node,
                     const std::function<void(const std::string& name, const std::string& osName)>& use);

 private:
  void FillLogTypeNodes(ui::NodeId osNode);
  void FillCategoryNodes(ui::NodeId logTypeNode, const std::string& osIndex);
  void FillAlarmNodes(ui::NodeId categoryNode, const std::string& osIndex);
  void AddBranch(ui::NodeId parent, const std::string& key, const std::string& text, const char* image);
  void AddDummy(ui::NodeId node);
  void FillBelow(ui::NodeId node);
  std::string OsNameAbove(ui::NodeId alarm) const;

  modMain& main_;
  ui::TreeView& tree_;
  /// Branches get a dummy, to be filled when they are opened.
  bool lazy_ = true;
};

}  // namespace corvane
