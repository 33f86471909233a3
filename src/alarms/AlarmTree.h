#pragma once

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

 private:
  void FillLogTypeNodes(ui::NodeId osNode);
  void FillCategoryNodes(ui::NodeId logTypeNode, const std::string& osIndex);
  void FillAlarmNodes(ui::NodeId categoryNode, const std::string& osIndex);
  void AddBranch(ui::NodeId parent, const std::string& key, const std::string& text, const char* image);
  void AddDummy(ui::NodeId node);

  modMain& main_;
  ui::TreeView& tree_;
};

}  // namespace corvane
