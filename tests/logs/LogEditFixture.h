#pragma once

#include "app/installation/TextFile.h"
#include "logs/frmLogEdit.h"
#include "support/ConsoleTest.h"

namespace corvane::test {

/// A started console on the domain MERIDIAN, and what a user does on the log editor.
class LogEditTest : public ConsoleTest {
 protected:
  LogEditTest() { Console.Start(); }

  using Script = std::function<void(frmLogEdit&)>;

  /// Opens the editor by its command, to add or for the first log; the script runs after the loading.
  void Add(const Script& script) {
    OnEditor(script);
    Host.Click(Window().mnuFileAdd);
  }
  void Edit(const Script& script) {
    OnEditor(script);
    Host.DoubleClick(Window().lvwComputers, 0);
  }

  /// Opens branches of the catalogue down to the node of a path such as `OS|log|category|alarm` and clicks it.
  void Pick(ui::TreeView& tree, const std::string& path) {
    ui::NodeId node = 0;
    std::istringstream parts(path);
    for (std::string part; std::getline(parts, part, '|');) {
      if (node != 0 && !tree.Node(node).Expanded) Host.Open(tree, node);
      const auto children = tree.ChildrenOf(node);
      const auto found = std::ranges::find(children, part, [&](ui::NodeId child) { return tree.Node(child).Text; });
      ASSERT_NE(children.end(), found) << part;
      node = *found;
    }
    Host.ClickNode(tree, node);
  }
  void Pick(ui::ListView& list, const std::string& text) {
    for (int row = 0; row < list.Count(); ++row)
      if (list.Item(row).Text == text) return Host.SelectOnly(list, row);
    ADD_FAILURE() << "no row " << text;
  }
  /// Picks it and clicks the button.
  template <class List>
  void Move(List& list, const std::string& what, ui::CommandButton& button) {
    Pick(list, what);
    Host.Click(button);
  }
  void AddDiskAlarm(frmLogEdit& form) { Move(form.tvAlarms, DiskBadBlock, form.cmdAdd); }
  void Save(frmLogEdit& form, const std::string& refusal = "", const std::string& with = "") {
    if (!refusal.empty()) OnMessage(refusal, with);
    Host.Click(form.cmdOK);
    EXPECT_EQ(refusal.empty(), form.IsUnloaded());
    EXPECT_EQ(ui::Pointer::Default, form.MousePointer);
  }
  void WatchSystemLogOf(const std::string& computer, const std::string& refusal = "") {
    Add([&](frmLogEdit& form) {
      ChooseSystemLogOf(form, computer);
      AddDiskAlarm(form);
      Save(form, refusal);
    });
  }
  void ChooseSystemLogOf(frmLogEdit& form, const std::string& computer) {
    Host.Type(form.lstComputerName, computer);
    Host.Choose(form.lstLogType, 1);
  }

  /// The statements that changed rows are those that the queries of a file give.
  void ExpectChanges(const std::string& file) {
    std::string changes;
    for (const std::string& sql : Console.Data.Changes()) changes += sql + "\n";
    EXPECT_EQ(Console.Rows(ReadTextFile(CORVANE_SOURCE_DIR "/tests/logs/" + file)), changes);
  }
  /// Texts of the nodes at the top, parted by ", ".
  static std::string Chosen(const ui::TreeView& tree) {
    std::string all;
    for (const ui::NodeId node : tree.Roots()) all += (all.empty() ? "" : ", ") + tree.Node(node).Text;
    return all;
  }
  static std::string KeyOf(const ui::TreeView& tree, std::size_t root) { return tree.Node(tree.Roots()[root]).Key; }

  const std::string DiskErrors = "Windows 2000/XP/2003|System|Disk and File System", Desk = "Duty Desk Popup";
  const std::string DiskBadBlock = DiskErrors + "|Disk Bad Block";

 private:
  void OnEditor(const Script& script) {
    Host.OnModal<frmLogEdit>("frmLogEdit", [this, script](frmLogEdit& form) {
      Host.Pass(75);
      script(form);
      if (!form.IsUnloaded()) Host.Click(form.cmdCancel);
    });
  }
};

}  // namespace corvane::test
