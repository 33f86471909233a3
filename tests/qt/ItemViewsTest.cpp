#include <QHeaderView>
#include <QLineEdit>

#include "HostFixture.h"

namespace corvane::test {

/// Acts on the rows of a list and on the nodes of a tree.
class ItemViewsTest : public HostTest {
 protected:
  ItemViewsTest() { form.lvwRows.Columns = {{"Name", 1500, false}, {"Size", 900, true}, {"Key", 0, false}}; }

  void Rows(int count) {
    for (int i = 0; i < count; ++i)
      form.lvwRows.Add(
          {"", "row\n" + std::to_string(i), {std::to_string(i), std::to_string(count - i)}, "alarm", false});
  }
  QTreeView& List() { return WidgetOf<QTreeView>(form.lvwRows); }
  QTreeView& Tree() { return WidgetOf<QTreeView>(form.tvTree); }

  static void ClickRow(const QTreeView& view, int row, Qt::KeyboardModifiers keys = Qt::NoModifier,
                       Qt::MouseButton button = Qt::LeftButton) {
    ClickAt(view, MiddleOf(view, view.model()->index(row, 0)), keys, button);
    Serve();
  }
  static void DragRow(const QTreeView& from, int row, QPoint to) {
    QWindow* window = from.window()->windowHandle();
    const QPoint at = MiddleOf(from, from.model()->index(row, 0));
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, at);
    for (int step = 1; step <= 5; ++step) QTest::mouseMove(window, at + (to - at) * step / 5);
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, to);
    Serve(20);
  }
  std::string Selected() const {
    std::string rows;
    for (const ui::ListItem& item : form.lvwRows.Items())
      if (item.Selected) rows += item.Text.substr(4) + " ";
    return rows + "focus " + std::to_string(form.lvwRows.FocusRow());
  }
  // What the tree shows, from top to bottom.
  std::string Nodes() {
    std::string text;
    for (QModelIndex at = Tree().model()->index(0, 0); at.isValid(); at = Tree().indexBelow(at))
      text += at.data().toString().toStdString() + (at == Tree().currentIndex() ? "* " : " ");
    return text;
  }
};

TEST_F(ItemViewsTest, TheSelectionGoesBothWaysAndBeforeTheRightButton) {
  Rows(6);
  std::string clicks;
  form.lvwRows.ItemClick = [&](int row) { clicks += std::to_string(row); };
  form.lvwRows.MouseUp = [&](ui::MouseButton button) {
    if (button == ui::MouseButton::Right) clicks += " right " + Selected();
  };
  form.Show();
  EXPECT_TRUE(List().selectionModel()->selectedRows().isEmpty());
  EXPECT_EQ("row 1", List().model()->index(1, 0).data().toString().toStdString()) << "a row has one line";
  ClickRow(List(), 1);
  ClickRow(List(), 3, Qt::ControlModifier);
  EXPECT_EQ("1 3 focus 3", Selected());
  ClickRow(List(), 3);
  ClickRow(List(), 5, Qt::ShiftModifier);
  EXPECT_EQ("3 4 5 focus 5", Selected());
  Key(form.lvwRows, Qt::Key_Up);
  EXPECT_EQ("4 focus 4", Selected());
  EXPECT_EQ("13354", clicks);

  InHandler([&] {
    form.lvwRows.SetMultiSelect(false);
    form.lvwRows.Select(2);
  });
  ASSERT_EQ(1, List().selectionModel()->selectedRows().size());
  EXPECT_EQ(2, List().currentIndex().row());
  ClickRow(List(), 0, Qt::ControlModifier);
  EXPECT_EQ("0 focus 0", Selected());
  EXPECT_EQ("133540", clicks);
  clicks.clear();
  ClickRow(List(), 2, Qt::NoModifier, Qt::RightButton);
  EXPECT_TRUE(clicks.ends_with(" right 2 focus 2")) << clicks;
}

TEST_F(ItemViewsTest, HeadersSortInTheModelAndMarkTheClickedColumn) {
  Rows(3);
  form.lvwRows.ColumnClick = [&](int column) {
    EXPECT_EQ(1, column);
    form.lvwRows.SortBy(2, ui::SortOrder::Ascending);  // a hidden column is the key
  };
  form.Show();
  EXPECT_FALSE(List().header()->isSortIndicatorShown());
  EXPECT_TRUE(List().isColumnHidden(2));
  QHeaderView& header = *List().header();
  QTest::mouseClick(header.viewport(), Qt::LeftButton, Qt::NoModifier, {header.sectionPosition(1) + 20, 8});
  Serve();
  EXPECT_EQ("row 2", List().model()->index(0, 0).data().toString());
  EXPECT_TRUE(header.isSortIndicatorShown());
  EXPECT_EQ(1, header.sortIndicatorSection());
  EXPECT_EQ(Qt::AscendingOrder, header.sortIndicatorOrder());
}

TEST_F(ItemViewsTest, ATreeFillsItsBranchesWhenTheUserOpensThem) {
  const ui::NodeId root = form.tvTree.Add(0, "root", "root", "os");
  form.tvTree.Add(root, "", "stand-in", "");
  std::string order;
  form.tvTree.Expand = [&](ui::NodeId node) {
    order += "expand ";
    while (!form.tvTree.ChildrenOf(node).empty()) form.tvTree.Remove(form.tvTree.ChildrenOf(node).front());
    for (const char* name : {"a", "b", "c"}) form.tvTree.Add(node, name, name, "alarm");
  };
  form.tvTree.Collapse = [&](ui::NodeId node) {
    order += "collapse ";
    form.tvTree.Remove(form.tvTree.ChildrenOf(node).back());
  };
  form.tvTree.NodeClick = [&](ui::NodeId node) { order += form.tvTree.Node(node).Text + " "; };
  form.Show();
  const QModelIndex index = Tree().model()->index(0, 0);
  const auto clickExpander = [&] {
    const QRect item = Tree().visualRect(index);
    ClickAt(Tree(), MiddleOf(Tree(), index) - QPoint(item.width() / 2 + Tree().indentation() / 2, 0));
    Serve();
  };
  clickExpander();
  EXPECT_TRUE(form.tvTree.Node(root).Expanded);
  EXPECT_EQ("root* a b c ", Nodes());
  ClickRow(Tree(), 0);
  Key(form.tvTree, Qt::Key_Down);
  EXPECT_EQ(form.tvTree.Find("a"), form.tvTree.Selected());
  clickExpander();
  EXPECT_EQ(2, Tree().model()->rowCount(index));
  EXPECT_EQ("expand root a collapse ", order.substr(0, order.find("collapse ") + 9));
}

TEST_F(ItemViewsTest, ATreeFollowsWhatItsFormDoesToIt) {
  const ui::NodeId root = form.tvTree.Add(0, "", "root", "");
  for (const char* name : {"a", "b", "c", "d"}) form.tvTree.Add(root, name, name, "");
  form.tvTree.SetExpanded(root, true);
  form.tvTree.Select(form.tvTree.Find("b"));
  form.Show();
  EXPECT_EQ("root a b* c d ", Nodes());
  InHandler([&] {
    for (const char* gone : {"b", "d"}) form.tvTree.Remove(form.tvTree.Find(gone));
    form.tvTree.Add(root, "e", "e", "");
  });
  EXPECT_EQ("root a c e ", Nodes());
  InHandler([&] {
    form.tvTree.Clear();
    form.tvTree.Add(0, "new", "new", "");
  });
  EXPECT_EQ("new ", Nodes());
}

// What is typed arrives before the click that ends the typing; a label that nobody may change is left alone.
TEST_F(ItemViewsTest, ALabelIsChangedInItsPlaceWhenTheFormAsksForIt) {
  std::string order;
  const ui::NodeId node = form.tvTree.Add(0, "a", "a", "alarm");
  form.tvTree.Select(node);
  form.tvTree.AfterLabelEdit = [&](ui::NodeId edited, const std::string& text) {
    order += std::to_string(edited - node) + text + " ";
    return text != "no";
  };
  form.Show();
  const auto edit = [&](const char* text, auto end) {
    InHandler([&] { form.tvTree.StartLabelEdit(node); });
    auto* line = Tree().findChild<QLineEdit*>();
    ASSERT_NE(nullptr, line);
    EXPECT_EQ(form.tvTree.Node(node).Text, line->text().toStdString());
    line->setText(text);
    form.cmdOK.Click = [&] { order += "OK "; };
    end(*line);
    Serve(20);
    EXPECT_EQ(0, form.tvTree.EditedNode());
  };
  const auto key = [](Qt::Key which) { return [which](QLineEdit& line) { QTest::keyClick(&line, which); }; };
  edit("b", key(Qt::Key_Return));
  edit("no", key(Qt::Key_Enter));
  edit("c", key(Qt::Key_Escape));
  EXPECT_EQ("b* ", Nodes());
  edit("c", [&](QLineEdit&) { Click(form.cmdOK); });
  EXPECT_EQ("c* ", Nodes());
  EXPECT_EQ("0b 0no 0c OK ", order);
  Tree().edit(Tree().model()->index(0, 0));
  EXPECT_EQ(nullptr, Tree().findChild<QLineEdit*>());
}

TEST_F(ItemViewsTest, DraggingDropsOnNamedTargetsOnly) {
  Rows(3);
  form.tvTree.Add(0, "", "root", "");
  std::string dropped;
  form.lvwRows.DragTargets = {&form.tvTree};
  form.tvTree.DragDrop = [&] { dropped += Selected(); };
  form.txtName.DragDrop = [&] { ADD_FAILURE() << "not a target"; };
  form.Show();
  ClickRow(List(), 0);
  ClickRow(List(), 2, Qt::ControlModifier);
  DragRow(List(), 2, MiddleOf(Tree()));
  EXPECT_EQ("0 2 focus 2", dropped);
  DragRow(List(), 1, MiddleOf(WidgetOf(form.txtName)));
  DragRow(List(), 1, MiddleOf(List()) + QPoint(0, 60));
  DragRow(Tree(), 0, MiddleOf(List()));
  EXPECT_EQ("0 2 focus 2", dropped) << "once only";
  EXPECT_EQ("1 focus 1", Selected());
  // Escape gives a drag up.
  QWindow* window = Window(form).windowHandle();
  QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, MiddleOf(List(), List().model()->index(0, 0)));
  QTest::mouseMove(window, MiddleOf(Tree()));
  EXPECT_NE(nullptr, QApplication::overrideCursor());
  Key(form.lvwRows, Qt::Key_Escape);
  EXPECT_EQ(nullptr, QApplication::overrideCursor());
  QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, MiddleOf(Tree()));
  Serve();
  EXPECT_EQ("0 2 focus 2", dropped);
  EXPECT_FALSE(form.IsUnloaded());
}

TEST_F(ItemViewsTest, TheSideUnderThePointerBecomesTheWideOne) {
  form.lvwRows.Width = 2610;
  form.tvTree.Width = 5865;
  form.lvwRows.MouseMove = [&] { std::swap(form.lvwRows.Width, form.tvTree.Width); };
  form.Show();
  Await(Window(form));
  EXPECT_NEAR(5865.0 / 2610, 1.0 * Tree().width() / List().width(), 0.05);
  for (const ui::Control* under : std::initializer_list<ui::Control*>{&form.txtName, &form.lvwRows})
    QTest::mouseMove(Window(form).windowHandle(), MiddleOf(WidgetOf(*under)));
  Serve();
  EXPECT_NEAR(5865.0 / 2610, 1.0 * List().width() / Tree().width(), 0.05);
}

}  // namespace corvane::test
