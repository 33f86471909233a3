#include "adapters/qt/bindings/ListViewModel.h"

#include "adapters/qt/Text.h"
#include "adapters/qt/look/Icons.h"

namespace corvane::qt {
namespace {

QVariant Alignment(const ui::ListColumn& column) {
  return QVariant::fromValue(Qt::Alignment((column.AlignRight ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter));
}

// All rows are as high as the first one.
QString InOneLine(QString text) { return text.replace("\r\n", " ").replace('\n', ' '); }

}  // namespace

void ListViewModel::Sync() {
  beginResetModel();
  rows_ = list_.Count();
  columns_ = static_cast<int>(list_.Columns.size());
  endResetModel();
}

void ListViewModel::SyncHeaders() {
  if (columns_ > 0) emit headerDataChanged(Qt::Horizontal, 0, columns_ - 1);
}

QVariant ListViewModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= list_.Count()) return {};
  switch (role) {
    case Qt::DisplayRole:
      return InOneLine(ToQt(list_.Item(index.row()).Cell(index.column())));
    case Qt::DecorationRole:
      return index.column() == 0 ? icons::Variant(list_.Item(index.row()).Icon) : QVariant();
    case Qt::TextAlignmentRole:
      return Alignment(list_.Columns[static_cast<std::size_t>(index.column())]);
    default:
      return {};
  }
}

QVariant ListViewModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section >= static_cast<int>(list_.Columns.size())) return {};
  const ui::ListColumn& column = list_.Columns[static_cast<std::size_t>(section)];
  if (role == Qt::DisplayRole) return ToQt(column.Header);
  if (role == Qt::TextAlignmentRole) return Alignment(column);
  return {};
}

}  // namespace corvane::qt
