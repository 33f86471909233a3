#pragma once

#include "alarms/AlarmTree.h"

namespace corvane::ui {
class ListView;
}

namespace corvane {

class ChosenTree;

/// Where alarms are picked from: the catalogue and the list of bundles beside it. What had the focus last is what adds.
class AlarmPicker {
 public:
  /// Wires the opening and closing of branches, and the focus.
  AlarmPicker(modMain& main, ui::TreeView& catalogue, ui::ListView& bundles);

  /// Fills the catalogue with its first level, and the list of bundles. What cannot be read is left out.
  void Fill();
  /// Adds what is selected: an alarm, all alarms of a category, or a bundle. Errors add nothing.
  void AddSelectedTo(ChosenTree& chosen);

 private:
  void LoadBundleList();

  modMain& main_;
  ui::TreeView& tree_;
  ui::ListView& bundles_;
  AlarmTree catalogue_;
  bool treeUsedLast_ = false;
};

}  // namespace corvane
