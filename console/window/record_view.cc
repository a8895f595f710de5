// SPDX-License-Identifier: MIT
#include "console/window/record_view.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSettings>
#include <QStackedLayout>
#include <QVBoxLayout>
#include <optional>
#include <set>

namespace alertconsole {
namespace {

constexpr int kIconSize = 18;
constexpr int kLinesAtLeast = 4;

QStringList TitlesOf(const std::vector<Column>& columns) {
  QStringList titles;
  for (const Column& column : columns) titles << column.title;
  return titles;
}

}  // namespace

/// Where a person is in the table.
struct RecordView::Place {
  std::set<RowKey> selected;
  std::optional<RowKey> current, top;
};

RecordView::RecordView(const QString& name, const std::vector<Column>& columns, QWidget* parent)
    : QWidget(parent),
      model_(TitlesOf(columns)),
      shown_(model_),
      filter_(new QLineEdit(this)),
      filter_label_(new QLabel(tr("&Filter:"), this)),
      table_(new QTreeView(this)),
      note_(new QLabel(this)),
      stack_(new QStackedLayout) {
  MakeFilter(name);
  MakeTable(name, columns);
  note_->setWordWrap(true);
  note_->setAlignment(Qt::AlignCenter);
  note_->setMargin(24);
  note_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);  // as small as the table may be
  stack_->addWidget(table_);
  stack_->addWidget(note_);
  filter_label_->setBuddy(filter_);
  auto* line = new QHBoxLayout;
  line->addWidget(filter_label_);
  line->addWidget(filter_);
  auto* column = new QVBoxLayout(this);
  column->addLayout(line);
  column->addLayout(stack_, 1);
}

void RecordView::MakeFilter(const QString& name) {
  filter_->setAccessibleName(tr("Filter of the %1").arg(name));
  filter_->setPlaceholderText(tr("Show only rows that hold this text (Ctrl+F)"));
  filter_->setClearButtonEnabled(true);
  filter_->installEventFilter(this);
  connect(filter_, &QLineEdit::textChanged, this, [this](const QString& text) {
    const Place place = PlaceNow();
    shown_.SetFilter(text);
    Restore(place);
    ShowNote();
    if (on_filter_) on_filter_();
  });
}

void RecordView::MakeTable(const QString& name, const std::vector<Column>& columns) {
  setObjectName(name);
  table_->setAccessibleName(name);
  table_->setModel(&shown_);
  table_->setRootIsDecorated(false);
  table_->setUniformRowHeights(true);
  table_->setMinimumHeight(table_->fontMetrics().lineSpacing() * kLinesAtLeast);
  table_->setAllColumnsShowFocus(true);
  table_->setAlternatingRowColors(true);
  table_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  table_->setIconSize(QSize(kIconSize, kIconSize));
  table_->setSortingEnabled(true);
  table_->sortByColumn(-1, Qt::AscendingOrder);  // the order of adding, until a person asks for another
  table_->setContextMenuPolicy(Qt::ActionsContextMenu);
  const int letter = table_->fontMetrics().averageCharWidth();
  for (std::size_t column = 0; column < columns.size(); ++column)
    table_->header()->resizeSection(static_cast<int>(column), letter * columns[column].letters);
  connect(table_, &QTreeView::activated, this, [this] {
    if (on_activated_) on_activated_();
  });
  // The keyboard comes into the table with a current row that is not chosen; commands and Enter are for chosen ones.
  connect(table_->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this](const QModelIndex& row) {
            if (row.isValid() && !table_->selectionModel()->hasSelection())
              table_->selectionModel()->select(row, QItemSelectionModel::Select | QItemSelectionModel::Rows);
          });
  connect(table_->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
    if (on_selection_) on_selection_();
  });
}

void RecordView::HideFilter() {
  filter_->hide();
  filter_label_->hide();
}

void RecordView::SetEmptyText(const QString& text) {
  empty_text_ = text;
  ShowNote();
}

void RecordView::ShowNote() {
  const bool filtered = Count() > 0 && ShownCount() == 0;
  note_->setText(
      filtered
          ? tr("No row holds \"%1\".\n\nClear the filter to see all %2.").arg(filter_->text()).arg(Count())
          : empty_text_);
  stack_->setCurrentIndex(ShownCount() > 0 ? 0 : 1);
}

RowKey RecordView::KeyOf(const QModelIndex& index) const {
  return model_.Rows()[static_cast<std::size_t>(shown_.mapToSource(index).row())].key;
}

QModelIndex RecordView::IndexOf(const RowKey& key) const {
  const auto& rows = model_.Rows();
  for (std::size_t row = 0; row < rows.size(); ++row)
    if (rows[row].key == key) return shown_.mapFromSource(model_.index(static_cast<int>(row), 0));
  return {};
}

RecordView::Place RecordView::PlaceNow() const {
  Place place;
  for (const RowKey& key : Selected()) place.selected.insert(key);
  if (table_->currentIndex().isValid()) place.current = KeyOf(table_->currentIndex());
  if (const QModelIndex top = table_->indexAt(QPoint(1, 1)); top.isValid()) place.top = KeyOf(top);
  return place;
}

void RecordView::Restore(const Place& place) {
  QItemSelection selection;
  const auto& rows = model_.Rows();
  for (std::size_t row = 0; !place.selected.empty() && row < rows.size(); ++row) {
    if (place.selected.count(rows[row].key) == 0) continue;
    const QModelIndex shown = shown_.mapFromSource(model_.index(static_cast<int>(row), 0));
    if (shown.isValid()) selection.select(shown, shown);
  }
  if (const QModelIndex current = place.current ? IndexOf(*place.current) : QModelIndex(); current.isValid())
    table_->selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
  table_->selectionModel()->select(selection,
                                   QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  if (const QModelIndex top = place.top ? IndexOf(*place.top) : QModelIndex(); top.isValid())
    table_->scrollTo(top, QAbstractItemView::PositionAtTop);
}

void RecordView::SetRows(std::vector<Row> rows) {
  const Place place = PlaceNow();
  if (!model_.SetRows(std::move(rows))) Restore(place);
  ShowNote();
  if (on_selection_) on_selection_();
}

std::vector<RowKey> RecordView::Selected() const {
  std::vector<RowKey> keys;
  QModelIndexList rows = table_->selectionModel()->selectedRows();
  std::sort(rows.begin(), rows.end());
  for (const QModelIndex& row : rows) keys.push_back(KeyOf(row));
  return keys;
}

void RecordView::Select(const RowKey& key) {
  const QModelIndex index = IndexOf(key);
  if (!index.isValid()) return;
  table_->selectionModel()->setCurrentIndex(index,
                                            QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  table_->scrollTo(index);
}

void RecordView::FocusFilter() {
  filter_->setFocus(Qt::ShortcutFocusReason);
  filter_->selectAll();
}

// From the filter the arrow leads into the table, and Escape clears it first.
void RecordView::OnFilterKey(int key) {
  if (key == Qt::Key_Escape) filter_->clear();
  table_->setFocus(Qt::TabFocusReason);
  if (key != Qt::Key_Down || table_->selectionModel()->hasSelection()) return;
  const QModelIndex current = table_->currentIndex();
  table_->selectionModel()->setCurrentIndex(current.isValid() ? current : shown_.index(0, 0),
                                            QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

bool RecordView::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
  const int key = static_cast<QKeyEvent*>(event)->key();
  if (key != Qt::Key_Escape && key != Qt::Key_Down) return false;
  OnFilterKey(key);
  return true;
}

void RecordView::Remember(QSettings& settings) const {
  settings.setValue(objectName() + "/columns", table_->header()->saveState());
}

void RecordView::Recall(const QSettings& settings) {
  table_->header()->restoreState(settings.value(objectName() + "/columns").toByteArray());
}

}  // namespace alertconsole
