#include "alarms/AlarmPicker.h"

#include "alarms/Bundles.h"
#include "alarms/ChosenTree.h"
#include "core/PassOver.h"
#include "platform/ui/ListView.h"

namespace corvane {

AlarmPicker::AlarmPicker(modMain& main, ui::TreeView& catalogue, ui::ListView& bundles)
    : main_(main), tree_(catalogue), bundles_(bundles), catalogue_(main, catalogue) {
  bundles_.SetMultiSelect(false);
  tree_.GotFocus = [this] { treeUsedLast_ = true; };
  bundles_.GotFocus = [this] { treeUsedLast_ = false; };
  tree_.Expand = [this](ui::NodeId node) { PassOver([&] { catalogue_.Expand(node); }); };
  tree_.Collapse = [this](ui::NodeId node) { PassOver([&] { catalogue_.Collapse(node); }); };
}

void AlarmPicker::Fill() {
  PassOver([&] { catalogue_.FillOSNodes(); });
  PassOver([&] { LoadBundleList(); });
}

void AlarmPicker::LoadBundleList() {
  bundles_.Clear();
  ForEachBundle(main_, [&](const std::string& key, const std::string& name) {
    PassOver([&] { bundles_.Add({key, name, {}, alarmimage::Bundle}); });
  });
}

void AlarmPicker::AddSelectedTo(ChosenTree& chosen) {
  PassOver([&] {
    if (treeUsedLast_) {
      catalogue_.ForEachPicked(tree_.Selected(), [&](const std::string& name, const std::string& osName) {
        chosen.AddAlarmNode(name, osName);
      });
    } else {
      const ui::ListItem& row = bundles_.Item(bundles_.SelectedRow());
      chosen.AddBundleNode(row.Text, chosenkey::BundleId(row.Key));
    }
  });
}

}  // namespace corvane
