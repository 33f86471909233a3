#pragma once

#include <gtest/gtest.h>

#include "logs/frmLogEdit.h"
#include "support/TestConsole.h"

namespace corvane::test {

/// A started console on the domain MERIDIAN, and what a user does on the log editor.
class LogEditTest : public ::testing::Test {
 protected:
  LogEditTest() { console.Start(); }

  ScriptedHost& Host() { return console.Host; }
  frmCVMain& Window() { return console.Window(); }

  using Script = std::function<void(frmLogEdit&)>;

  /// Opens the editor by its command; the script runs after the loading.
  void Add(const Script& script) {
    Host().OnModal<frmLogEdit>("frmLogEdit", Loaded(script));
    Host().Click(Window().mnuFileAdd);
  }
  void Edit(int row, const Script& script) {
    Host().OnModal<frmLogEdit>("frmLogEdit", Loaded(script));
    Host().DoubleClick(Window().lvwComputers, row);
  }

  /// Opens branches of the catalogue down to the node of a path such as `OS|log|category|alarm` and clicks it.
  void PickAlarm(ui::TreeView& tree, std::vector<std::string> path) {
    ui::NodeId node = 0;
    for (std::size_t level = 0; level < path.size(); ++level) {
      if (node != 0 && !tree.Node(node).Expanded) Host().Open(tree, node);
      node = Child(tree, node, path[level]);
      ASSERT_NE(0, node) << path[level];
    }
    Host().ClickNode(tree, node);
  }
  void PickRow(ui::ListView& list, const std::string& text) {
    for (int row = 0; row < list.Count(); ++row)
      if (list.Item(row).Text == text) return Host().SelectOnly(list, row);
    ADD_FAILURE() << "no row " << text;
  }
  static ui::NodeId Child(const ui::TreeView& tree, ui::NodeId parent, const std::string& text) {
    for (const ui::NodeId child : tree.ChildrenOf(parent))
      if (tree.Node(child).Text == text) return child;
    return 0;
  }
  /// Texts of the nodes at the top, parted by ", ".
  static std::string Chosen(const ui::TreeView& tree) {
    std::string all;
    for (const ui::NodeId node : tree.Roots()) all += (all.empty() ? "" : ", ") + tree.Node(node).Text;
    return all;
  }
  static std::string Lines(const ui::ListBox& list) {
    std::string all;
    for (const std::string& line : list.All()) all += line + "\n";
    return all;
  }

  void AddDiskAlarm(frmLogEdit& form) {
    PickAlarm(form.tvAlarms, DiskBadBlock);
    Host().Click(form.cmdAdd);
  }
  void WatchSystemLogOf(const std::string& computer) {
    Add([&](frmLogEdit& form) {
      Host().Type(form.lstComputerName, computer);
      Host().Choose(form.lstLogType, 1);
      AddDiskAlarm(form);
      Host().Click(form.cmdOK);
    });
  }

  const std::vector<std::string> DiskBadBlock{"Windows 2000/XP/2003", "System", "Disk and File System",
                                              "Disk Bad Block"};
  TestConsole console;

 private:
  Script Loaded(const Script& script) {
    return [this, script](frmLogEdit& form) {
      Host().Pass(75);
      script(form);
      if (!form.IsUnloaded()) Host().Click(form.cmdCancel);
    };
  }
};

}  // namespace corvane::test
