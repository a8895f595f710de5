// SPDX-License-Identifier: MIT
#include "desktops/qt/list_box_adapter.h"

#include <QHeaderView>
#include <algorithm>

#include "desktops/qt/guard.h"
#include "desktops/qt/texts.h"

namespace desktops::qt {

namespace {
constexpr int kColumnGap = 16;
}

ListBoxAdapter::ListBoxAdapter(platform::ui::ListBox& model, QWidget* parent)
    : ListAdapter(model, new QTreeWidget(parent)),
      model_(model),
      list_(static_cast<QTreeWidget*>(OwnedWidget())) {
  WatchKeys(list_);
  list_->setHeaderHidden(true);
  list_->setRootIsDecorated(false);
  list_->setUniformRowHeights(true);
  list_->setTabKeyNavigation(false);
  list_->setMinimumHeight(list_->fontMetrics().lineSpacing() * 6);
  connect(list_, &QTreeWidget::itemSelectionChanged, this, [this] { OnSelectionChanged(); });
  connect(list_, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem* item) {
    Guarded([&] { model_.OnDoubleClick(list_->indexOfTopLevelItem(item)); });
  });
}

void ListBoxAdapter::Fill() {
  const QSignalBlocker quiet(list_);
  list_->clear();
  int columns = 1 + static_cast<int>(model_.TabPositions().size());
  for (int i = 0; i < model_.Count(); ++i) {
    const QString text = ToQt(model_.ItemText(i));
    const QStringList cells = model_.TabStops() ? text.split('\t') : QStringList{text};
    columns = std::max(columns, static_cast<int>(cells.size()));
    list_->addTopLevelItem(new QTreeWidgetItem(cells));
  }
  list_->setColumnCount(columns);
  const bool shows_all = !model_.TabPositions().empty();
  for (int i = 0; i < columns; ++i) {
    list_->resizeColumnToContents(i);
    // A last column takes what room is left, and would be scrolled for more than that.
    if (i + 1 == columns && !shows_all) break;
    list_->setColumnWidth(i, std::max(list_->columnWidth(i) + kColumnGap, AskedWidth(i)));
  }
  if (shows_all) ShowAllColumns(*list_);
}

// The width from one tab stop to the next; 0 for the last column, which has none behind it.
int ListBoxAdapter::AskedWidth(int column) const {
  const std::vector<int>& stops = model_.TabPositions();
  const auto index = static_cast<std::size_t>(column);
  if (index >= stops.size()) return 0;
  const int start = index == 0 ? 0 : stops[index - 1];
  return (stops[index] - start) * list_->fontMetrics().averageCharWidth();
}

void ListBoxAdapter::ShowCurrent() {
  const QSignalBlocker quiet(list_);
  QTreeWidgetItem* item = list_->topLevelItem(model_.Current());
  list_->clearSelection();
  list_->setCurrentItem(item);
  if (item != nullptr) list_->scrollToItem(item);
}

// Ctrl and a click would leave nothing chosen, which a person cannot ask for: the model's choice stands then.
void ListBoxAdapter::OnSelectionChanged() {
  const QList<QTreeWidgetItem*> selected = list_->selectedItems();
  if (!selected.isEmpty()) {
    Guarded([&] { model_.OnChoose(list_->indexOfTopLevelItem(selected.first())); });
  } else {
    ShowCurrent();
  }
}

}  // namespace desktops::qt
