// SPDX-License-Identifier: MIT
#pragma once

#include <QTreeView>
#include <QWidget>
#include <functional>
#include <vector>

#include "console/window/table_model.h"

class QLabel;
class QLineEdit;
class QSettings;
class QStackedLayout;

namespace alertconsole {

struct Column {
  QString title;
  int letters = 18;  ///< its first width in average letters, so that it grows with the font
};

/// A table of records with a field that filters it. Selection, focus and scrolling belong to records, not to rows: they stay
/// with theirs whatever comes, goes or moves.
class RecordView : public QWidget {
 public:
  /// `name`: what a screen reader calls the table, also the name its columns are remembered by.
  RecordView(const QString& name, const std::vector<Column>& columns, QWidget* parent);
  /// For a table that shows a part of what was chosen elsewhere.
  void HideFilter();

  void SetRows(std::vector<Row> rows);
  /// What is said in place of a table without rows.
  void SetEmptyText(const QString& text);
  /// The chosen records, in the order shown.
  std::vector<RowKey> Selected() const;
  void Select(const RowKey& key);
  void SelectFirst() { table_->setCurrentIndex(shown_.index(0, 0)); }
  /// How many rows are shown, of how many.
  int ShownCount() const { return shown_.rowCount(); }
  int Count() const { return static_cast<int>(model_.Rows().size()); }

  void SetOnActivated(std::function<void()> handler) { on_activated_ = std::move(handler); }
  void SetOnSelection(std::function<void()> handler) { on_selection_ = std::move(handler); }
  void SetOnFilter(std::function<void()> handler) { on_filter_ = std::move(handler); }

  QTreeView& Table() { return *table_; }
  QLineEdit& Filter() { return *filter_; }
  /// Puts the keyboard where a person filters.
  void FocusFilter();

  void Remember(QSettings& settings) const;
  void Recall(const QSettings& settings);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Place;
  void MakeFilter(const QString& name);
  void MakeTable(const QString& name, const std::vector<Column>& columns);
  Place PlaceNow() const;
  void Restore(const Place& place);
  QModelIndex IndexOf(const RowKey& key) const;
  RowKey KeyOf(const QModelIndex& index) const;
  void ShowNote();
  void OnFilterKey(int key);

  TableModel model_;
  ShownRows shown_;
  QLineEdit* filter_;
  QLabel* filter_label_;
  QTreeView* table_;
  QLabel* note_;
  QStackedLayout* stack_;
  QString empty_text_;
  std::function<void()> on_activated_, on_selection_, on_filter_;
};

}  // namespace alertconsole
