#include "alarms/AlarmTree.h"
#include "core/SqlText.h"
#include "core/modMain.h"
#include "fuzz/Fuzz.h"
#include "logs/ChosenTree.h"
#include "platform/Conversions.h"
#include "support/TestConsole.h"

namespace corvane::fuzz {
namespace {

void CheckParts(std::string_view key) {
  const std::string last = GetLastKeyPart(key);
  Require(key.ends_with(last) && last.find('\\') == last.npos);
  Require(key.find('\\') == key.npos || key.size() > last.size());
  Require(!chosenkey::IsMember(key) || !chosenkey::IsBundle(key));
  Require(key.ends_with(chosenkey::BundleId(key)) && key.ends_with(chosenkey::CategoryIndex(key)));
}

// The save reads a chosen alarm's category out of its key, whatever the names are.
void CheckChosen(modMain& main, const std::string& category, const std::string& alarm) {
  ui::Form form(main.Ui, "frmFuzz");
  ui::TreeView chosen(form, "tvChosen");
  bool reported = false;
  ChosenTree(main, chosen, reported).AddAlarmNode(alarm, "Windows 2000/XP/2003");
  for (const ui::NodeId node : chosen.Roots())
    Require(SameText(chosenkey::CategoryIndex(chosen.Node(node).Key), category));
}

}  // namespace

// Two names, parted by a line break: a category's and an alarm's.
void Try(const std::string& input) {
  CheckParts(input);
  const std::string text = input.substr(0, 200);
  const std::size_t end = std::min(text.find('\n'), text.size());
  const std::string category = text.substr(0, end), alarm = text.substr(std::min(end + 1, text.size()));
  if (category.empty() || alarm.empty()) return;

  // Its store takes rows that are rolled back after each run.
  static test::TestConsole console;
  modMain& main = console.App.State();
  if (!console.App.Started()) console.Start();
  console.Data.Forget();
  main.ConfigConnection->BeginTrans();
  // A name may be one that the store does not take, such as one with a zero byte.
  test::ErrorOf([&] {
    const std::string index = category + "_2";
    for (const char* table : {"Alarms", "AlarmCategories"})
      main.ConfigConnection->Execute(std::string("DELETE FROM ") + table);
    main.ConfigConnection->Execute("INSERT INTO AlarmCategories ([Index], Name, OS, LogType) VALUES (" +
                                   QuoteSqlText(index) + ", " + QuoteSqlText(category) + ", 2, 3)");
    main.ConfigConnection->Execute("INSERT INTO Alarms (Name, AlarmCategory) VALUES (" + QuoteSqlText(alarm) + ", " +
                                   QuoteSqlText(index) + ")");
    CheckChosen(main, index, alarm);
  });
  main.ConfigConnection->RollbackTrans();
}

}  // namespace corvane::fuzz
