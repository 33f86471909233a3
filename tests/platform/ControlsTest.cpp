#include <gtest/gtest.h>

#include <functional>

#include "support/ErrorOf.h"
#include "support/ScriptedHost.h"

namespace corvane::test {

class Controls : public testing::Test {
 protected:
  void Fill(const std::vector<std::string>& texts) {
    for (const std::string& text : texts) List.Add({"k" + text, text, {text.substr(1)}, "", false});
  }
  std::string Texts() const {
    std::string texts;
    for (const ui::ListItem& item : List.Items()) texts += item.Text + (item.Selected ? "* " : " ");
    return texts;
  }

  ScriptedHost Host;
  ui::Form Form{Host, "frmTest"};
  ui::ListView List{Form, "lvw"};
};

TEST_F(Controls, ListSortsWithoutCaseAndLeavesEqualRowsInTheirOrder) {
  Fill({"b2", "A1", "a2", "B1"});
  List.SortBy(0, ui::SortOrder::Ascending);
  // Nobody looked in between: the order by the first column still decides among equal ones.
  List.SortBy(1, ui::SortOrder::Descending);
  EXPECT_EQ("a2 b2 A1 B1 ", Texts());
  Fill({"c1", "c2"});
  EXPECT_EQ("a2 b2 c2 A1 B1 c1 ", Texts());
  List.SortBy(5, ui::SortOrder::Ascending);
  List.Unsort();
  Fill({"A0"});
  EXPECT_EQ("a2 b2 c2 A1 B1 c1 A0 ", Texts());
}

TEST_F(Controls, ListMovesSelectionAndFocusWithTheirRow) {
  Fill({"c1", "b1", "a1"});
  List.Select(0);
  List.Select(2);
  List.SortBy(0, ui::SortOrder::Ascending);
  EXPECT_EQ("a1* b1 c1* ", Texts());
  List.SetMultiSelect(false);
  EXPECT_EQ("a1* b1 c1 ", Texts());
  List.Select(1);
  EXPECT_EQ("a1 b1* c1 ", Texts());
  List.Add({"", "d1", {}, "", true});
  EXPECT_EQ("a1 b1 c1 d1* ", Texts());
  List.Remove(0);
  EXPECT_EQ("b1 c1 d1* ", Texts());
  List.Remove(2);
  EXPECT_EQ("b1 c1 ", Texts());
  EXPECT_EQ(1, List.FocusRow());
}

TEST_F(Controls, ListRefusesAKeyTwiceUntilItsRowIsGone) {
  Fill({"a1"});
  EXPECT_EQ(errors::KeyNotUnique, ErrorOf([&] { Fill({"a1"}); }));
  List.Remove(0);
  Fill({"a1"});
  List.Clear();
  Fill({"a1"});
  for (int row = 0; row < 2; ++row) List.Add({});
  for (const int row : {-1, 3}) {
    EXPECT_EQ(errors::IndexOutOfBounds, ErrorOf([&] { List.Select(row); }));
    EXPECT_EQ(errors::IndexOutOfBounds, ErrorOf([&] { List.Remove(row); }));
  }
}

TEST_F(Controls, TreeRemovesWholeBranchesAndTheirKeys) {
  ui::TreeView tree{Form, "tv"};
  const auto add = [&](ui::NodeId parent, const std::string& key) { return tree.Add(parent, key, key, ""); };
  const ui::NodeId root = add(0, "root"), branch = add(root, "branch"), leaf = add(branch, "leaf"),
                   other = add(root, "other");
  add(other, "");
  add(other, "");
  EXPECT_EQ(errors::KeyNotUnique, ErrorOf([&] { add(other, "leaf"); }));
  EXPECT_EQ(errors::ElementNotFound, ErrorOf([&] { add(99, "new"); }));
  EXPECT_EQ((std::vector<ui::NodeId>{root, branch, leaf, other, 5, 6}), tree.InTreeOrder());
  tree.Select(leaf);
  tree.Remove(branch);
  EXPECT_EQ(0, tree.Selected() + tree.Find("leaf"));
  EXPECT_EQ(std::vector<ui::NodeId>{other}, tree.ChildrenOf(root));
  for (const ui::NodeId gone : {branch, leaf, 0})
    EXPECT_EQ(errors::ElementNotFound, ErrorOf([&] { tree.Remove(gone); }));
  // A view that still knows the number of a node that went must not meet another one under it.
  tree.Clear();
  EXPECT_EQ(7, add(0, "root"));
}

TEST_F(Controls, ComboBoxTakesOtherTextsOnlyWhenEditable) {
  ui::ComboBox box{Form, "cmb"};
  int clicks = 0;
  box.Click = box.Change = [&] { ++clicks; };
  for (const char* text : {"one", "Two", "two"}) box.AddItem(text);
  box.SetText("two");
  EXPECT_EQ(2, box.ListIndex());
  EXPECT_EQ(errors::InvalidPropertyValue, ErrorOf([&] { box.SetText("TWO"); }));
  box.RemoveItem(0);
  EXPECT_EQ("two", box.Text());
  box.RemoveItem(1);
  EXPECT_EQ("", box.Text());
  box.Editable = true;
  box.SetText("typed");
  box.RemoveItem(0);
  EXPECT_EQ("typed", box.Text());
  box.Clear();
  for (const int index : {-2, 0}) {
    EXPECT_EQ(errors::InvalidPropertyValue, ErrorOf([&] { box.SetListIndex(index); }));
    EXPECT_EQ(errors::InvalidPropertyValue, ErrorOf([&] { box.RemoveItem(index); }));
  }
  EXPECT_EQ(0, clicks);
}

struct LivingForm : ui::Form {
  explicit LivingForm(ui::UiHost& host) : Form(host, "frmLiving") {}
  bool Form_Load() override { return (Life += "load "), OnLoad(); }
  void Form_Unload() override { Life += "unload "; }

  std::function<bool()> OnLoad = [] { return true; };
  std::string Life;
  ui::CommandButton cmdHidden{*this, "cmdHidden"};
};

TEST_F(Controls, FormLoadsOnceAndIsNotShownWhenItRefuses) {
  LivingForm refusing(Host), breaking(Host), living(Host);
  refusing.OnLoad = [] { return false; };
  refusing.ShowModal();
  EXPECT_FALSE(refusing.Load());
  EXPECT_EQ("load ", refusing.Life);
  breaking.OnLoad = []() -> bool { throw RuntimeError(errors::Overflow, "Overflow"); };
  EXPECT_EQ(errors::Overflow, ErrorOf([&] { breaking.ShowModal(); }));
  breaking.ShowModal();
  EXPECT_EQ("load ", breaking.Life);
  EXPECT_TRUE(Host.Shown.empty());
  // A cancel button that is hidden does not stand in the way of the close box.
  living.cmdHidden.Cancel = true;
  living.cmdHidden.Visible = false;
  Host.OnModal("frmLiving", [&](ui::Form& form) { form.CloseBox(); });
  living.ShowModal();
  living.Unload();
  living.Show();
  EXPECT_EQ("load unload ", living.Life);
  EXPECT_EQ(1U, Host.Shown.size());
}

}  // namespace corvane::test
