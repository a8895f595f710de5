// SPDX-License-Identifier: MIT
#include "desktops/qt/list_box_adapter.h"

#include <algorithm>
#include <cmath>

#include "desktops/qt/guard.h"
#include "desktops/qt/text_widths.h"
#include "desktops/qt/texts.h"

namespace desktops::qt {

namespace {

constexpr int kColumnGap = 16;

/// Leaves to the model which item a letter means.
class ItemList : public QTreeWidget {
 public:
  ItemList(platform::ui::ListBox& model, QWidget* parent) : QTreeWidget(parent), model_(model) {}

  void keyboardSearch(const QString& typed) override {
    Guarded([&] { model_.OnTyped(FromQt(typed)); });
  }

 private:
  platform::ui::ListBox& model_;
};

}  // namespace

ListBoxAdapter::ListBoxAdapter(platform::ui::ListBox& model, QWidget* parent)
    : ListAdapter(model, new ItemList(model, parent)),
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
  TextWidths text_widths(list_->font());
  std::vector<qreal> widest(1 + model_.TabPositions().size());
  QList<QTreeWidgetItem*> rows;
  for (int i = 0; i < model_.Count(); ++i) {
    const QStringList cells = CellsOf(model_.ItemText(i));
    widest.resize(std::max(widest.size(), static_cast<std::size_t>(cells.size())));
    for (std::size_t column = 0; const QString& cell : cells) {
      widest[column] = std::max(widest[column], text_widths.Of(cell));
      ++column;
    }
    rows << new QTreeWidgetItem(cells);
  }
  list_->clear();
  list_->setColumnCount(static_cast<int>(widest.size()));
  list_->addTopLevelItems(rows);
  SetColumnWidths(widest);
}

QStringList ListBoxAdapter::CellsOf(const std::string& text) const {
  return model_.TabStops() ? ToQt(text).split('\t') : QStringList{ToQt(text)};
}

// The toolkit's own way of fitting columns lays out every text in them, which takes longer than all the rest.
void ListBoxAdapter::SetColumnWidths(const std::vector<qreal>& widest_texts) {
  const int margin = 1 + list_->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, list_);
  const int last = list_->columnCount() - 1;
  const bool shows_all = !model_.TabPositions().empty();
  for (int column = 0; const qreal text : widest_texts) {
    const int width = static_cast<int>(std::ceil(text)) + 2 * margin;
    // A last column takes what room is left, and would be scrolled for more than that.
    const bool is_apart = column < last || shows_all;
    list_->setColumnWidth(column, is_apart ? std::max(width + kColumnGap, AskedWidth(column)) : width);
    ++column;
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
