#include "core/console/SyslogDeviceList.h"

#include "core/PassOver.h"
#include "core/SqlText.h"
#include "core/modMain.h"
#include "platform/Conversions.h"
#include "platform/ui/ListView.h"
#include "platform/ui/SimpleControls.h"

namespace corvane {
namespace {

ui::ListItem DeviceRow(const modMain& main, const Recordset& row) {
  ui::ListItem item;
  item.Text = NullToEmpty(row.Field("DeviceName"));
  item.Icon = "syslogdevice";
  item.SubItems = {NullToEmpty(row.Field("DeviceIP"))};
  item.Selected = UpperCase(main.SelectedName) == UpperCase(item.Text) &&
                  UpperCase(main.SelectedDetail) == UpperCase(item.SubItems.front());
  return item;
}

}  // namespace

void LoadSyslogDevices(modMain& main, ui::ListView& list, ui::StatusBar& status, bool descending) {
  list.SetMultiSelect(false);
  list.Clear();
  Recordset& rows = *main.SharedRecordset;
  PassOver([&] {
    rows.Open(std::string("SELECT * FROM SyslogDevices ORDER BY DeviceName ") + (descending ? "DESC" : "ASC"),
              *main.ConfigConnection, CursorType::ForwardOnly, LockType::ReadOnly);
    for (; !rows.Eof(); rows.MoveNext()) list.Add(DeviceRow(main, rows));
    status.Panels[0].Text = std::to_string(list.Count()) + " syslog device(s) accepted by Corvane";
  });
  list.SetMultiSelect(true);
  if (rows.State() == ObjectState::Open) rows.Close();
}

}  // namespace corvane
