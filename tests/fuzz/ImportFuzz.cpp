#include "fuzz/ExchangeDesk.h"
#include "fuzz/Fuzz.h"

// Whatever stands in the file is listed or left out, shown and imported or refused.
void corvane::fuzz::Try(const std::string& input) {
  static ExchangeDesk desk;
  desk.Write("[Alarms]\r\n" + input);
  frmAlarmImport form(desk.State());
  form.Load();
  form.cmdBrowse.Click();
  for (int row = 0; row < form.lvwItemsToImport.Count(); ++row) {
    const ui::ListItem& item = form.lvwItemsToImport.Item(row);
    Require(!item.Key.empty() && item.Key.starts_with(item.Text) && item.Key.size() < 2 * 510);
    form.lvwItemsToImport.Select(row);
    form.cmdView.Click();
    form.cmdAbandon.Click();
  }
  desk.Try(form.cmdImport.Click);
}
