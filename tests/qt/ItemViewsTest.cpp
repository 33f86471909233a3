#include <QHeaderView>
#include <QMenu>

#include "HostFixture.h"

namespace corvane::test {

/// Acts on the rows of a list and on the nodes of a tree.
class ItemViewsTest : public HostTest {
 protected:
  ItemViewsTest() { form.lvwRows.Columns = {{"Name", 1500, false}, {"Size", 900, true}, {"Key", 0, false}}; }

  void Rows(int count) {
    for (int i = 0; i < count; ++i)
      form.lvwRows.Add(
          {"", "row " + std::to_string(i), {std::to_string(i), std::to_string(count - i)}, "alarm", false});
  }
  QTreeView& List() { return WidgetOf<QTreeView>(form.lvwRows); }
  QTreeView& Tree() { return WidgetOf<QTreeView>(form.tvTree); }

  static QPoint PlaceOf(const QTreeView& view, const QModelIndex& index) {
    return view.visualRect(index).center() + QPoint(0, 0);
  }
  /// A mouse event at a place of a view, by the window system.
  static QWindow* Mouse(const QTreeView& view, QPoint& place) {
    place = view.viewport()->mapTo(view.window(), place);
    return view.window()->windowHandle();
  }
  static void ClickRow(const QTreeView& view, int row, Qt::KeyboardModifiers keys = Qt::NoModifier,
                       Qt::MouseButton button = Qt::LeftButton) {
    QPoint place = PlaceOf(view, view.model()->index(row, 0));
    QWindow* window = Mouse(view, place);
    QTest::mouseClick(window, button, keys, place);
    Serve();
  }
  static void Drag(const QTreeView& from, const QModelIndex& index, const QWidget& to, QPoint offset = {}) {
    QPoint place = PlaceOf(from, index);
    QWindow* window = Mouse(from, place);
    const QPoint target = to.mapTo(to.window(), to.rect().center()) + offset;
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, place);
    for (int step = 1; step <= 4; ++step) QTest::mouseMove(window, place + (target - place) * step / 4);
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, target);
    Serve();
  }
  std::string Selected() const {
    std::string rows;
    for (const ui::ListItem& item : form.lvwRows.Items())
      if (item.Selected) rows += item.Text.substr(4) + " ";
    return rows + "focus " + std::to_string(form.lvwRows.FocusRow());
  }

  frmTest form{Host};
};

TEST_F(ItemViewsTest, TheSelectionGoesBothWays) {
  Rows(6);
  std::string clicks;
  form.lvwRows.ItemClick = [&](int row) { clicks += std::to_string(row); };
  form.Show();
  EXPECT_TRUE(List().selectionModel()->selectedRows().isEmpty());
  ClickRow(List(), 1);
  ClickRow(List(), 3, Qt::ControlModifier);
  EXPECT_EQ("1 3 focus 3", Selected());
  ClickRow(List(), 3);
  ClickRow(List(), 5, Qt::ShiftModifier);
  EXPECT_EQ("3 4 5 focus 5", Selected());
  QTest::keyClick(&List(), Qt::Key_Up);
  Serve();
  EXPECT_EQ("4 focus 4", Selected());
  EXPECT_EQ("13354", clicks);

  form.cmdOK.Click = [&] {
    form.lvwRows.SetMultiSelect(false);
    form.lvwRows.Select(2);
  };
  Click(form.cmdOK);
  EXPECT_EQ(QAbstractItemView::SingleSelection, List().selectionMode());
  ASSERT_EQ(1, List().selectionModel()->selectedRows().size());
  EXPECT_EQ(2, List().currentIndex().row());
  ClickRow(List(), 0, Qt::ControlModifier);
  EXPECT_EQ("0 focus 0", Selected());
  EXPECT_EQ("133540", clicks);
}

TEST_F(ItemViewsTest, HeadersSortInTheModelAndMarkTheClickedColumn) {
  Rows(3);
  std::string clicked;
  form.lvwRows.ColumnClick = [&](int column) {
    clicked += std::to_string(column);
    form.lvwRows.SortBy(2, ui::SortOrder::Ascending);  // a hidden column is the key
  };
  form.Show();
  EXPECT_FALSE(List().header()->isSortIndicatorShown());
  EXPECT_TRUE(List().isColumnHidden(2));
  EXPECT_EQ(100, List().columnWidth(0));
  QHeaderView& header = *List().header();
  QTest::mouseClick(header.viewport(), Qt::LeftButton, Qt::NoModifier, {header.sectionPosition(1) + 20, 8});
  Serve();
  EXPECT_EQ("1", clicked);
  EXPECT_EQ("row 2", List().model()->index(0, 0).data().toString());
  EXPECT_TRUE(header.isSortIndicatorShown());
  EXPECT_EQ(1, header.sortIndicatorSection());
  EXPECT_EQ(Qt::AscendingOrder, header.sortIndicatorOrder());
}

TEST_F(ItemViewsTest, ADoubleClickAndTheRightButtonReachTheirHandlers) {
  Rows(3);
  std::string order;
  form.lvwRows.DblClick = [&] { order += "double " + std::to_string(form.lvwRows.SelectedRow()) + " "; };
  form.lvwRows.MouseUp = [&](ui::MouseButton button) {
    if (button == ui::MouseButton::Right) order += "right " + std::to_string(form.lvwRows.SelectedRow()) + " ";
  };
  form.Show();
  QPoint place = PlaceOf(List(), List().model()->index(1, 0));
  QWindow* window = Mouse(List(), place);
  QTest::mouseDClick(window, Qt::LeftButton, Qt::NoModifier, place);
  Serve();
  ClickRow(List(), 2, Qt::NoModifier, Qt::RightButton);
  EXPECT_EQ("double 1 right 2 ", order);
}

TEST_F(ItemViewsTest, AHundredThousandRowsAreShownAndRefilled) {
  form.Show();
  Rows(100000);
  form.lvwRows.Select(99999);
  Host.Picture(form);
  EXPECT_EQ(100000, List().model()->rowCount());
  EXPECT_EQ("row 99999", List().currentIndex().data().toString());
  EXPECT_TRUE(List().viewport()->rect().intersects(List().visualRect(List().currentIndex())));
  form.lvwRows.Clear();
  Rows(2);
  Host.Picture(form);
  EXPECT_EQ(2, List().model()->rowCount());
}

TEST_F(ItemViewsTest, ATreeFillsItsBranchesWhenTheUserOpensThem) {
  const ui::NodeId root = form.tvTree.Add(0, "root", "root", "os");
  form.tvTree.Add(root, "", "stand-in", "");
  form.tvTree.Add(0, "other", "other", "os");
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
    QPoint place(Tree().visualRect(index).left() - Tree().indentation() / 2, Tree().visualRect(index).center().y());
    QWindow* window = Mouse(Tree(), place);
    QTest::mouseClick(window, Qt::LeftButton, Qt::NoModifier, place);
    Serve();
  };
  clickExpander();
  EXPECT_TRUE(Tree().isExpanded(index) && form.tvTree.Node(root).Expanded);
  ASSERT_EQ(3, Tree().model()->rowCount(index));
  EXPECT_EQ("b", Tree().model()->index(1, 0, index).data().toString());
  ClickRow(Tree(), 0);
  QTest::keyClick(&Tree(), Qt::Key_Down);
  Serve();
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
  const auto shown = [&] {
    std::string text;
    const QModelIndex top = Tree().model()->index(0, 0);
    for (int row = 0; row < Tree().model()->rowCount(top); ++row)
      text += Tree().model()->index(row, 0, top).data().toString().toStdString();
    return text + (Tree().currentIndex().isValid() ? " " + Tree().currentIndex().data().toString().toStdString() : "");
  };
  EXPECT_TRUE(Tree().isExpanded(Tree().model()->index(0, 0)));
  EXPECT_EQ("abcd b", shown());
  form.cmdOK.Click = [&] {
    form.tvTree.Remove(form.tvTree.Find("b"));
    form.tvTree.Remove(form.tvTree.Find("d"));
    form.tvTree.Add(root, "e", "e", "");
  };
  Click(form.cmdOK);
  EXPECT_EQ("ace", shown());
  form.cmdOK.Click = [&] {
    form.tvTree.Clear();
    form.tvTree.Add(0, "new", "new", "");
  };
  Click(form.cmdOK);
  EXPECT_EQ(1, Tree().model()->rowCount());
  EXPECT_EQ("", shown());
}

TEST_F(ItemViewsTest, DraggingDropsOnNamedTargetsOnly) {
  Rows(3);
  form.tvTree.Add(0, "", "root", "");
  int drops = 0;
  std::string what;
  form.lvwRows.DragTargets = {&form.tvTree};
  form.tvTree.DragDrop = [&] {
    ++drops;
    what = Selected();
  };
  form.txtName.DragDrop = [&] { ADD_FAILURE() << "not a target"; };
  form.lvwRows.ItemClick = [](int) {};
  form.Show();
  ClickRow(List(), 0);
  ClickRow(List(), 2, Qt::ControlModifier);
  Drag(List(), List().model()->index(2, 0), Tree());
  EXPECT_EQ(1, drops);
  EXPECT_EQ("0 2 focus 2", what);
  Drag(List(), List().model()->index(1, 0), WidgetOf<QWidget>(form.txtName));
  Drag(List(), List().model()->index(1, 0), List(), {0, 60});
  Drag(Tree(), Tree().model()->index(0, 0), List());
  EXPECT_EQ(1, drops);
  EXPECT_EQ("1 focus 1", Selected());
  EXPECT_EQ(nullptr, QApplication::overrideCursor());
}

TEST_F(ItemViewsTest, EscapeGivesADragUp) {
  Rows(1);
  form.lvwRows.DragTargets = {&form.tvTree};
  form.tvTree.DragDrop = [] { ADD_FAILURE() << "dropped"; };
  form.Show();
  QPoint place = PlaceOf(List(), List().model()->index(0, 0));
  QWindow* window = Mouse(List(), place);
  const QPoint target = Tree().mapTo(Tree().window(), Tree().rect().center());
  QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, place);
  QTest::mouseMove(window, target);
  EXPECT_NE(nullptr, QApplication::overrideCursor());
  QTest::keyClick(&List(), Qt::Key_Escape);
  EXPECT_EQ(nullptr, QApplication::overrideCursor());
  QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, target);
  Serve();
  EXPECT_FALSE(form.IsUnloaded());
}

TEST_F(ItemViewsTest, TheSideUnderThePointerBecomesTheWideOne) {
  const auto widen = [this](int list, int tree) {
    form.lvwRows.Width = list;
    form.tvTree.Width = tree;
  };
  widen(2610, 5865);
  form.lvwRows.MouseMove = [&] { widen(5820, 2610); };
  form.tvTree.GotFocus = [&] { widen(2610, 5865); };
  form.Show();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&Host.ViewOf(form)->Window()));
  EXPECT_NEAR(5865.0 / 2610, 1.0 * Tree().width() / List().width(), 0.05);
  const auto moveTo = [](const QWidget& widget) {
    QTest::mouseMove(widget.window()->windowHandle(), widget.mapTo(widget.window(), widget.rect().center()));
    Serve();
  };
  moveTo(WidgetOf<QWidget>(form.txtName));
  moveTo(List());
  EXPECT_NEAR(5820.0 / 2610, 1.0 * List().width() / Tree().width(), 0.05);
  Host.SetFocus(form.tvTree);
  Serve();
  EXPECT_NEAR(5865.0 / 2610, 1.0 * Tree().width() / List().width(), 0.05);
}

}  // namespace corvane::test
