#include "alarms/frmAlarmImport.h"
#include "fuzz/Fuzz.h"
#include "support/TestConsole.h"

// Whatever stands in the file is listed or left out, shown, and imported or refused.
void corvane::fuzz::Try(const std::string& input) {
  static test::TestConsole console;
  modMain& main = console.App.State();
  if (!main.ConfigConnection) console.Start();
  console.Host.ToAnyBox = ui::MsgResult::Yes;
  console.Host.Boxes.clear();
  console.Place.Write("a.ini", "[Alarms]\r\n" + input);
  console.Host.OnOpenFile((console.Place.Path() / "a.ini").string());
  frmAlarmImport form(main);
  form.Load();
  form.cmdBrowse.Click();
  for (int row = 0; row < form.lvwItemsToImport.Count(); ++row) {
    const std::string& key = form.lvwItemsToImport.Item(row).Key;
    Require(!key.empty() && key.size() < 2 * 510);
    form.lvwItemsToImport.Select(row);
    form.cmdView.Click();
    form.cmdAbandon.Click();
  }
  main.ConfigConnection->BeginTrans();
  form.cmdImport.Click();
  main.ConfigConnection->RollbackTrans();
}
