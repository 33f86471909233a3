#pragma once

#include <string>

#include "alarms/AlarmTree.h"
#include "platform/ui/ListView.h"

namespace corvane {

/// The members of the bundle that is being written: the catalogue they are picked from, and the list of those chosen.
/// Nothing is written before `Save`. The controls belong to the form. Failures of statements are raised.
class BundleMembers {
 public:
  BundleMembers(modMain& main, ui::TreeView& picker, ui::ListView& members);

  /// Fills the catalogue afresh with nothing picked, and lists no members.
  void Begin();
  /// Lists the members that a bundle has.
  void Load(const std::string& bundleId);
  /// Writes a row for each member listed.
  void Save(const std::string& bundleId) const;

  /// Adds the alarm that is picked, or all alarms of the category that is.
  void AddPicked();
  /// Takes the selected members off the list. Asks when there are several.
  void RemoveSelected();

 private:
  void AddAlarmToBundleList(const std::string& name, const std::string& osName);
  bool RefusesPicked();

  modMain& main_;
  ui::TreeView& picker_;
  ui::ListView& members_;
  AlarmTree catalogue_;
  /// Only the first duplicate is told while the screen lives, however many bundles are written meanwhile.
  bool duplicateReported_ = false;
};

}  // namespace corvane
