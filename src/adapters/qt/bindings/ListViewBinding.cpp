#include "adapters/qt/bindings/ListViewBinding.h"

#include <QHeaderView>
#include <QItemSelection>
#include <QScrollBar>
#include <QTreeView>
#include <algorithm>

namespace corvane::qt {
namespace {

constexpr int TwipsPerInch = 1440;

bool SameColumns(const std::vector<ui::ListColumn>& a, const std::vector<ui::ListColumn>& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const ui::ListColumn& x, const ui::ListColumn& y) {
    return x.Header == y.Header && x.Width == y.Width && x.AlignRight == y.AlignRight;
  });
}

}  // namespace

ListViewBinding::ListViewBinding(FormView& view, ui::ListView& control, QTreeView* list)
    : ItemViewBinding(view, control, list), control_(control), model_(control, list) {
  list->setModel(&model_);
  list->setRootIsDecorated(false);
  list->setItemsExpandable(false);
  list->setAlternatingRowColors(true);
  list->setSelectionBehavior(QAbstractItemView::SelectRows);
  list->header()->setSectionsClickable(true);
  list->header()->setSectionsMovable(false);
  list->header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  connect(list->selectionModel(), &QItemSelectionModel::selectionChanged, this, &ListViewBinding::SelectionChanged);
  connect(list->selectionModel(), &QItemSelectionModel::currentChanged, this, &ListViewBinding::CurrentChanged);
  connect(list, &QTreeView::clicked, this, &ListViewBinding::FireItemClick);
  connect(list, &QTreeView::doubleClicked, this, [this] { Postpone(control_.DblClick); });
  connect(list->header(), &QHeaderView::sectionClicked, this, [this](int column) {
    clickedColumn_ = column;
    if (control_.ColumnClick) Postpone([click = control_.ColumnClick, column] { click(column); });
  });
}

void ListViewBinding::Update() {
  const auto mode = control_.MultiSelect() ? QAbstractItemView::ExtendedSelection : QAbstractItemView::SingleSelection;
  if (Tree().selectionMode() != mode) Tree().setSelectionMode(mode);
  UpdateRows();
  UpdateColumns();
  UpdateSelection();
  UpdateSortIndicator();
}

void ListViewBinding::UpdateRows() {
  if (structure_ == control_.StructureRevision() && columns_.size() == control_.Columns.size()) return;
  structure_ = control_.StructureRevision();
  const int place = Tree().verticalScrollBar()->value();
  model_.Sync();
  selection_ = control_.SelectionRevision() - 1;
  Tree().doItemsLayout();
  Tree().verticalScrollBar()->setValue(place);
}

// A width that the user has given a column stays until the form sets another one.
void ListViewBinding::UpdateColumns() {
  if (SameColumns(columns_, control_.Columns)) return;
  QHeaderView& header = *Tree().header();
  for (std::size_t i = 0; i < control_.Columns.size(); ++i) {
    const int section = static_cast<int>(i);
    const int width = control_.Columns[i].Width * header.logicalDpiX() / TwipsPerInch;
    const bool changed = i >= columns_.size() || columns_[i].Width != control_.Columns[i].Width;
    header.setSectionHidden(section, width == 0);
    if (width > 0 && changed) header.resizeSection(section, width);
  }
  columns_ = control_.Columns;
  model_.SyncHeaders();
}

void ListViewBinding::UpdateSelection() {
  if (selection_ == control_.SelectionRevision()) return;
  selection_ = control_.SelectionRevision();
  ShowSelection();
}

void ListViewBinding::ShowSelection() {
  const std::vector<ui::ListItem>& rows = control_.Items();
  QItemSelection selection;
  const int last = model_.columnCount() - 1;
  for (int row = 0; row < control_.Count(); ++row) {
    if (!rows[static_cast<std::size_t>(row)].Selected) continue;
    const int first = row;
    while (row + 1 < control_.Count() && rows[static_cast<std::size_t>(row + 1)].Selected) ++row;
    selection.append(QItemSelectionRange(model_.index(first, 0), model_.index(row, std::max(0, last))));
  }
  QItemSelectionModel& shown = *Tree().selectionModel();
  const int selected = control_.SelectedRow();
  const QModelIndex current = model_.index(selected >= 0 ? selected : control_.FocusRow(), 0);
  shown.setCurrentIndex(current, QItemSelectionModel::NoUpdate);
  shown.select(selection, QItemSelectionModel::ClearAndSelect);
  if (selected >= 0) Tree().scrollTo(current);
}

void ListViewBinding::UpdateSortIndicator() {
  QHeaderView& header = *Tree().header();
  if (header.isSortIndicatorShown() != control_.Sorted()) header.setSortIndicatorShown(control_.Sorted());
  if (!control_.Sorted()) return;
  const int column = header.isSectionHidden(control_.SortColumn()) ? clickedColumn_ : control_.SortColumn();
  const auto order = control_.Order() == ui::SortOrder::Ascending ? Qt::AscendingOrder : Qt::DescendingOrder;
  if (header.sortIndicatorSection() != column || header.sortIndicatorOrder() != order)
    header.setSortIndicator(column, order);
}

void ListViewBinding::SelectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
  if (!IsUsers()) return;
  const auto apply = [this](const QItemSelection& ranges, bool on) {
    for (const QItemSelectionRange& range : ranges)
      for (int row = range.top(); row <= range.bottom() && row < control_.Count(); ++row) control_.Select(row, on);
  };
  apply(deselected, false);
  apply(selected, true);
  control_.SetFocusRow(Tree().currentIndex().row());
  selection_ = control_.SelectionRevision();
}

void ListViewBinding::CurrentChanged(const QModelIndex& current) {
  if (!IsUsers()) return;
  control_.SetFocusRow(current.row());
  if (ByKey()) FireItemClick(current);
}

void ListViewBinding::FireItemClick(const QModelIndex& index) {
  if (!index.isValid() || !control_.ItemClick) return;
  Postpone([this, row = index.row()] {
    if (row < control_.Count()) control_.ItemClick(row);
  });
}

void ListViewBinding::MouseReleased(Qt::MouseButton button) {
  if (!control_.MouseUp || (button != Qt::LeftButton && button != Qt::RightButton)) return;
  const auto which = button == Qt::RightButton ? ui::MouseButton::Right : ui::MouseButton::Left;
  Postpone([up = control_.MouseUp, which] { up(which); });
}

}  // namespace corvane::qt
