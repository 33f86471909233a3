#include "core/console/SyslogDeletion.h"

#include <string>
#include <vector>

#include "core/PassOver.h"
#include "core/SqlText.h"
#include "core/modMain.h"
#include "platform/ui/ListView.h"
#include "platform/ui/UiHost.h"

namespace corvane {
namespace {

std::vector<std::string> SelectedDevices(const ui::ListView& devices) {
  std::vector<std::string> names;
  for (const ui::ListItem& item : devices.Items())
    if (item.Selected) names.push_back(item.Text);
  return names;
}

}  // namespace

bool DeleteSyslogDevices(modMain& main, const ui::ListView& devices) {
  const std::vector<std::string> names = SelectedDevices(devices);
  if (names.empty()) return false;
  const std::string what =
      names.size() < 2 ? "the " + names.front() + " syslog" : std::to_string(names.size()) + " syslog devices";
  if (main.Ui.MsgBox("Are you sure you want to stop listening for messages from " + what + "?", ui::MsgIcon::Question,
                     ui::MsgButtons::YesNo) != ui::MsgResult::Yes)
    return false;
  for (const std::string& name : names)
    PassOver(
        [&] { main.ConfigConnection->Execute("DELETE FROM SyslogDevices WHERE DeviceName = " + QuoteSqlText(name)); });
  return true;
}

}  // namespace corvane
