// SPDX-License-Identifier: MIT
#include "desktops/qt/list_view_adapter.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QScrollBar>
#include <algorithm>

#include "desktops/qt/guard.h"
#include "desktops/qt/keys.h"
#include "desktops/qt/texts.h"

namespace desktops::qt {

using platform::ui::ListView;

namespace {

bool MovesRow(int key) {
  return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_Home || key == Qt::Key_End ||
         key == Qt::Key_PageUp || key == Qt::Key_PageDown;
}

// What a header section needs besides its title and the margin asked for.
constexpr int kSectionPadding = 16;

}  // namespace

ReportWidget::ReportWidget(ListView& model, QWidget* parent) : QTreeWidget(parent), model_(model) {
  setRootIsDecorated(false);
  setUniformRowHeights(true);
  setAllColumnsShowFocus(true);
  setTabKeyNavigation(false);
  setMinimumHeight(fontMetrics().lineSpacing() * 8);
  header()->setSectionsMovable(false);
  connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { TellScrolled(); });
}

void ReportWidget::TellScrolled() {
  const int first = std::max(0, indexAt(QPoint(0, 0)).row());
  const int row_height = std::max(1, sizeHintForRow(0));
  model_.OnScrolled(first, std::max(1, viewport()->height() / row_height));
}

int ReportWidget::RowAt(const QMouseEvent& event) const { return indexAt(event.position().toPoint()).row(); }

void ReportWidget::mousePressEvent(QMouseEvent* event) { event->accept(); }

void ReportWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) Guarded([&] { model_.OnClickAt(RowAt(*event)); });
}

void ReportWidget::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) Guarded([&] { model_.OnDoubleClickAt(RowAt(*event)); });
}

void ReportWidget::keyPressEvent(QKeyEvent* event) {
  if (const auto key = KeyOf(*event)) Guarded([&] { model_.OnKeyDown(*key); });
  const QString typed = event->text();
  if (!typed.isEmpty() && typed[0].isLetterOrNumber() && (event->modifiers() & ~Qt::ShiftModifier) == 0)
    Guarded([&] { model_.OnTyped(FromQt(typed)); });
  // What does not move in the list may be for the window: Enter, Escape, F1.
  event->setAccepted(MovesRow(event->key()));
}

void ReportWidget::keyReleaseEvent(QKeyEvent* event) {
  if (const auto key = KeyOf(*event)) Guarded([&] { model_.OnKeyUp(*key); });
}

void ReportWidget::resizeEvent(QResizeEvent* event) {
  QTreeWidget::resizeEvent(event);
  TellScrolled();
}

ListViewAdapter::ListViewAdapter(ListView& model, QWidget* parent)
    : ListAdapter(model, new ReportWidget(model, parent)),
      model_(model),
      report_(static_cast<ReportWidget*>(OwnedWidget())) {}

void ListViewAdapter::Fill() {
  const QSignalBlocker quiet(report_);
  report_->clear();
  QStringList titles;
  for (const ListView::Column& column : model_.Columns()) titles << ToQt(column.title);
  report_->setColumnCount(static_cast<int>(titles.size()));
  report_->setHeaderLabels(titles);
  int index = 0;
  for (const ListView::Column& column : model_.Columns()) {
    const int title = report_->header()->fontMetrics().horizontalAdvance(titles[index]);
    report_->setColumnWidth(index++, title + column.margin + kSectionPadding);
  }
  if (index > 0) ShowAllColumns(*report_);
  QList<QTreeWidgetItem*> rows;
  for (int row = 0; row < model_.RowCount(); ++row) {
    QStringList cells;
    for (int column = 0; column < titles.size(); ++column) cells << ToQt(model_.Cell(row, column));
    rows << new QTreeWidgetItem(cells);
  }
  report_->addTopLevelItems(rows);
  report_->TellScrolled();
}

void ListViewAdapter::ShowCurrent() {
  QItemSelectionModel* selection = report_->selectionModel();
  const QModelIndex focused = report_->model()->index(model_.FocusedRow(), 0);
  selection->setCurrentIndex(focused, QItemSelectionModel::NoUpdate);
  const QModelIndex selected = report_->model()->index(model_.SelectedRow(), 0);
  selection->select(selected, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  if (focused.isValid()) report_->scrollTo(focused);
}

}  // namespace desktops::qt
