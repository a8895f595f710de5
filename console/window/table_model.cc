// SPDX-License-Identifier: MIT
#include "console/window/table_model.h"

#include <algorithm>

namespace alertconsole {

bool TableModel::SetRows(std::vector<Row> rows) {
  const bool same = std::equal(rows.begin(), rows.end(), rows_.begin(), rows_.end(),
                               [](const Row& a, const Row& b) { return a.key == b.key; });
  if (!same) beginResetModel();
  rows_ = std::move(rows);
  if (!same)
    endResetModel();
  else if (!rows_.empty())
    emit dataChanged(index(0, 0),
                     index(static_cast<int>(rows_.size()) - 1, static_cast<int>(titles_.size()) - 1));
  return same;
}

int TableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int TableModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(titles_.size());
}

QVariant TableModel::data(const QModelIndex& index, int role) const {
  const Row& row = rows_[static_cast<std::size_t>(index.row())];
  if (role == Qt::DisplayRole || role == Qt::ToolTipRole) return row.cells.value(index.column());
  if (role == Qt::DecorationRole && index.column() == 0 && !row.icon.isNull()) return row.icon;
  return {};
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Horizontal && role == Qt::DisplayRole) return titles_.value(section);
  return {};
}

ShownRows::ShownRows(TableModel& model) {
  setSourceModel(&model);
  setFilterKeyColumn(-1);
  setFilterCaseSensitivity(Qt::CaseInsensitive);
  setDynamicSortFilter(true);
}

void ShownRows::SetFilter(const QString& text) { setFilterFixedString(text); }

bool ShownRows::lessThan(const QModelIndex& left, const QModelIndex& right) const {
  const QString a = left.data().toString(), b = right.data().toString();
  bool a_is_number = false, b_is_number = false;
  const int a_number = a.toInt(&a_is_number), b_number = b.toInt(&b_is_number);
  if (a_is_number && b_is_number) return a_number < b_number;
  return a.compare(b, Qt::CaseInsensitive) < 0;
}

}  // namespace alertconsole
