// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>
#include <QIcon>
#include <QSortFilterProxyModel>
#include <QStringList>
#include <compare>
#include <vector>

#include "platform/base/guid.h"

namespace alertconsole {

/// What tells a row apart for good: a record's identity; for a user's entry the user's and the service's.
struct RowKey {
  platform::GUID id{};
  platform::GUID other{};
  friend auto operator<=>(const RowKey&, const RowKey&) = default;
};

struct Row {
  RowKey key;
  QStringList cells;
  QIcon icon{};  ///< before the first cell
};

/// The rows of a table, as last read from the stores.
class TableModel : public QAbstractTableModel {
 public:
  explicit TableModel(QStringList titles) : titles_(std::move(titles)) {}

  /// Shows these rows instead. Answers false when rows came, went or moved: views then know nothing of the earlier ones.
  bool SetRows(std::vector<Row> rows);
  const std::vector<Row>& Rows() const { return rows_; }

  int rowCount(const QModelIndex& parent) const override;
  int columnCount(const QModelIndex& parent) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  const QStringList titles_;
  std::vector<Row> rows_;
};

/// The rows that hold a text in any of their cells, in the order of a column: numbers by value, texts without regard to case.
class ShownRows : public QSortFilterProxyModel {
 public:
  explicit ShownRows(TableModel& model);
  void SetFilter(const QString& text);

 protected:
  bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;
};

}  // namespace alertconsole
