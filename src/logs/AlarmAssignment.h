#pragma once

#include "alarms/AlarmPicker.h"
#include "alarms/ChosenTree.h"
#include "logs/AttachmentRows.h"

namespace corvane::ui {
struct CommandButton;
class ListView;
}  // namespace corvane::ui

namespace corvane {

/// One tab of alarms or ignore events: the catalogue and the bundles on one side, what is chosen on the other, and the
/// two buttons between them. The controls belong to the form.
class AlarmAssignment {
 public:
  struct Controls {
    ui::TreeView& Catalogue;
    ui::ListView& Bundles;
    ui::TreeView& Chosen;
    ui::CommandButton& Add;
    ui::CommandButton& Remove;
  };

  AlarmAssignment(modMain& main, const Controls& controls, const AttachmentTables& tables, bool& duplicateReported);

  /// Fills the catalogue with its first level and the list of bundles, and empties the chosen side.
  void FillAvailable();
  /// Adds what is attached to a log: single alarms first, then bundles. Rows that name nothing any more add nothing.
  void LoadAttached(const std::string& idName);
  /// Writes what is chosen: every bundle, then each single alarm that no attached bundle holds.
  void SaveAlarms(AttachmentRows& rows) const;

  /// The handlers of the two buttons.
  void AddSelected();
  void RemoveSelected();

 private:
  void WireHandlers();
  void LoadAssociatedAlarms(const std::string& idName);
  void LoadAssociatedBundles(const std::string& idName);
  void SetAvailableWide(bool wide);

  modMain& main_;
  Controls controls_;
  AttachmentTables tables_;
  AlarmPicker picker_;
  ChosenTree chosen_;
};

}  // namespace corvane
