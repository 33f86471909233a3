#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "alarms/AlarmTree.h"
#include "core/SqlText.h"
#include "core/modMain.h"
#include "logs/ChosenTree.h"
#include "platform/Conversions.h"
#include "platform/RuntimeError.h"
#include "support/TestConsole.h"

using namespace corvane;

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

void CheckParts(std::string_view key) {
  const std::string last = GetLastKeyPart(key);
  Require(key.ends_with(last) && last.find('\\') == last.npos);
  Require(key.find('\\') == key.npos || key.size() > last.size());
  Require(!chosenkey::IsMember(key) || !chosenkey::IsBundle(key));
  Require(key.ends_with(chosenkey::BundleId(key)) && key.ends_with(chosenkey::CategoryIndex(key)));
}

// A started console, whose store takes rows that are rolled back after each run.
modMain& Main() {
  static test::TestConsole console;
  static const bool started = [] {
    console.Start();
    return true;
  }();
  Require(started);
  console.Data.Forget();
  return console.App.State();
}

// Opens every branch there is, some of them odd: a name can make a node look like one of another level.
void OpenAll(AlarmTree& tree, const ui::TreeView& view) {
  tree.FillOSNodes();
  for (int level = 0; level < 4; ++level)
    for (const ui::NodeId node : view.InTreeOrder()) {
      const bool isDummy = view.Node(node).Text == "DummyNode";
      const auto& children = view.ChildrenOf(node);
      if (isDummy || children.empty() || view.Node(children.front()).Text != "DummyNode") continue;
      try {
        tree.Expand(node);
      } catch (const RuntimeError&) {
      }
    }
}

bool LooksLikeAnotherLevel(const std::string& name) {
  for (const char* part : {"OS\\", "LOGTYPE\\", "ALARMCAT\\", "DUMMYNODE", "DummyNode"})
    if (name.find(part) != name.npos) return true;
  return false;
}

// The save reads a chosen alarm's category out of its key, whatever the names are.
void CheckChosen(modMain& main, const std::string& category, const std::string& alarm) {
  ui::Form form(main.Ui, "frmFuzz");
  ui::TreeView chosen(form, "tvChosen");
  bool reported = false;
  ChosenTree(main, chosen, reported).AddAlarmNode(alarm, "Windows 2000/XP/2003");
  for (const ui::NodeId node : chosen.Roots())
    Require(SameText(chosenkey::CategoryIndex(chosen.Node(node).Key), category + "_2"));
}

void CheckTree(modMain& main, const std::string& category, const std::string& alarm) {
  ui::Form form(main.Ui, "frmFuzz");
  ui::TreeView view(form, "tvAlarms");
  AlarmTree tree(main, view);
  OpenAll(tree, view);
  if (LooksLikeAnotherLevel(category)) return;
  const ui::NodeId node = view.Find("ALARM\\2\\" + category + "_2\\" + alarm);
  Require(node != 0 && view.Node(node).Text == alarm);
  if (category.find('\\') == category.npos)
    Require(GetLastKeyPart(view.Node(view.Node(node).Parent).Key) == category + "_2");
}

}  // namespace

// Two names, parted by a line break: a category's and an alarm's.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(data, data + std::min<std::size_t>(size, 200));
  CheckParts(text);
  const std::size_t end = std::min(text.find('\n'), text.size());
  const std::string category = text.substr(0, end), alarm = text.substr(std::min(end + 1, text.size()));
  if (category.empty() || alarm.empty()) return 0;

  modMain& main = Main();
  main.ConfigConnection->BeginTrans();
  try {
    for (const char* table : {"Alarms", "AlarmCategories"})
      main.ConfigConnection->Execute(std::string("DELETE FROM ") + table);
    main.ConfigConnection->Execute("INSERT INTO AlarmCategories ([Index], Name, OS, LogType) VALUES (" +
                                   QuoteSqlText(category + "_2") + ", " + QuoteSqlText(category) + ", 2, 3)");
    main.ConfigConnection->Execute("INSERT INTO Alarms (Name, AlarmCategory) VALUES (" + QuoteSqlText(alarm) + ", " +
                                   QuoteSqlText(category + "_2") + ")");
    CheckTree(main, category, alarm);
    CheckChosen(main, category, alarm);
  } catch (const RuntimeError&) {
    // A name that the store does not take, such as one with a zero byte.
  }
  main.ConfigConnection->RollbackTrans();
  return 0;
}
