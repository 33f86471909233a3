#include "platform/ui/ListView.h"

#include <algorithm>
#include <numeric>

#include "platform/Conversions.h"
#include "platform/RuntimeError.h"

namespace corvane::ui {

const std::string& ListItem::Cell(int column) const {
  static const std::string none;
  if (column == 0) return Text;
  const auto place = static_cast<std::size_t>(column - 1);
  return place < SubItems.size() ? SubItems[place] : none;
}

const ListItem& ListView::Item(int row) const {
  if (row < 0 || row >= Count()) throw RuntimeError(errors::IndexOutOfBounds, "Index out of bounds");
  EnsureOrder();
  return items_[static_cast<std::size_t>(row)];
}

const std::vector<ListItem>& ListView::Items() const {
  EnsureOrder();
  return items_;
}

void ListView::Add(ListItem item) {
  if (!item.Key.empty() && !keys_.insert(item.Key).second)
    throw RuntimeError(errors::KeyNotUnique, "Key is not unique in collection");
  if (item.Selected) {
    if (!multiSelect_) SelectNone();
    focusRow_ = Count();
    ++selection_;
  }
  items_.push_back(std::move(item));
  outOfOrder_ = sorted_;
  ++structure_;
}

void ListView::Remove(int row) {
  keys_.erase(Item(row).Key);
  items_.erase(items_.begin() + row);
  if (focusRow_ >= row) focusRow_ = std::min(focusRow_ - (focusRow_ > row ? 1 : 0), Count() - 1);
  ++structure_;
  ++selection_;
}

void ListView::Clear() {
  items_.clear();
  keys_.clear();
  focusRow_ = -1;
  outOfOrder_ = false;
  ++structure_;
  ++selection_;
}

void ListView::SetMultiSelect(bool on) {
  if (multiSelect_ == on) return;
  multiSelect_ = on;
  const int row = on ? -1 : SelectedRow();
  if (row >= 0) Select(row);
}

void ListView::Select(int row, bool on) {
  Item(row);
  if (on && !multiSelect_) SelectNone();
  items_[static_cast<std::size_t>(row)].Selected = on;
  if (on) focusRow_ = row;
  ++selection_;
}

void ListView::SelectNone() {
  for (ListItem& item : items_) item.Selected = false;
  ++selection_;
}

int ListView::SelectedCount() const {
  return static_cast<int>(std::count_if(items_.begin(), items_.end(), [](const auto& item) { return item.Selected; }));
}

int ListView::SelectedRow() const {
  EnsureOrder();
  if (focusRow_ >= 0 && focusRow_ < Count() && items_[static_cast<std::size_t>(focusRow_)].Selected) return focusRow_;
  const auto found = std::find_if(items_.begin(), items_.end(), [](const auto& item) { return item.Selected; });
  return found == items_.end() ? -1 : static_cast<int>(found - items_.begin());
}

void ListView::SortBy(int column, SortOrder order) {
  EnsureOrder();
  sorted_ = true;
  sortColumn_ = column;
  order_ = order;
  outOfOrder_ = true;
  ++structure_;
  ++selection_;
}

void ListView::Unsort() {
  EnsureOrder();
  sorted_ = false;
}

// Rows are put in order when somebody looks, so that filling a sorted list of many rows sorts once.
void ListView::EnsureOrder() const {
  if (!outOfOrder_) return;
  outOfOrder_ = false;
  std::vector<std::size_t> rows(items_.size());
  std::iota(rows.begin(), rows.end(), std::size_t{0});
  std::stable_sort(rows.begin(), rows.end(), [this](std::size_t a, std::size_t b) {
    const int order = CompareText(items_[a].Cell(sortColumn_), items_[b].Cell(sortColumn_));
    return order_ == SortOrder::Ascending ? order < 0 : order > 0;
  });
  std::vector<ListItem> sorted;
  sorted.reserve(items_.size());
  int focus = -1;
  for (const std::size_t row : rows) {
    if (static_cast<int>(row) == focusRow_) focus = static_cast<int>(sorted.size());
    sorted.push_back(std::move(items_[row]));
  }
  items_ = std::move(sorted);
  focusRow_ = focus;
}

}  // namespace corvane::ui
