#pragma once

#include <string>
#include <unordered_set>
#include <vector>

#include "platform/ui/Control.h"

namespace corvane::ui {

enum class SortOrder { Ascending = 0, Descending = 1 };
enum class MouseButton { Left = 1, Right = 2 };

struct ListColumn {
  std::string Header;
  /// Width in the form's own units; 0 hides the column.
  int Width = 0;
  bool AlignRight = false;
};

/// A row: its text stands in the first column, the sub-items in those behind it.
struct ListItem {
  std::string Key;
  std::string Text;
  std::vector<std::string> SubItems;
  std::string Icon;
  bool Selected = false;

  /// The text of a column from 0, empty where the row has none.
  const std::string& Cell(int column) const;
};

/// A report-style list. Rows are told by their index from 0 in the order shown. The revisions let a view see what has
/// changed: rows added, removed or moved; the text of rows; their selection.
class ListView : public Control {
 public:
  ListView(Form& form, std::string_view name) : Control(form, name, ControlKind::ListView) {}

  int Count() const { return static_cast<int>(items_.size()); }
  const ListItem& Item(int row) const;
  /// All rows in the order shown.
  const std::vector<ListItem>& Items() const;

  /// Adds a row at the end, or at its place in a sorted list. A key that stands already raises `KeyNotUnique`.
  void Add(ListItem item);
  void Remove(int row);
  void Clear();

  /// Rows may be selected together. Switching it off leaves one selected row at the most.
  bool MultiSelect() const { return multiSelect_; }
  void SetMultiSelect(bool on);
  void Select(int row, bool on = true);
  void SelectNone();
  int SelectedCount() const;
  /// The selected row with the focus, or the first selected one; -1 for none.
  int SelectedRow() const;
  /// The row the keyboard is on; -1 for none.
  int FocusRow() const { return focusRow_; }
  void SetFocusRow(int row) { focusRow_ = row; }

  /// Sorts by a column from 0, without regard to case, and keeps the list sorted as rows come.
  void SortBy(int column, SortOrder order);
  /// Keeps the order that the rows have; further ones come at the end.
  void Unsort();
  bool Sorted() const { return sorted_; }
  int SortColumn() const { return sortColumn_; }
  SortOrder Order() const { return order_; }

  unsigned StructureRevision() const { return structure_; }
  unsigned SelectionRevision() const { return selection_; }

  std::vector<ListColumn> Columns;
  /// Column from 0 whose header was clicked.
  std::function<void(int column)> ColumnClick;
  std::function<void(int row)> ItemClick;
  Handler DblClick;
  std::function<void(MouseButton button)> MouseUp;

 private:
  void EnsureOrder() const;

  mutable std::vector<ListItem> items_;
  mutable int focusRow_ = -1;
  mutable bool outOfOrder_ = false;
  std::unordered_set<std::string> keys_;
  bool multiSelect_ = true;
  bool sorted_ = false;
  int sortColumn_ = 0;
  SortOrder order_ = SortOrder::Ascending;
  unsigned structure_ = 0;
  unsigned selection_ = 0;
};

}  // namespace corvane::ui
