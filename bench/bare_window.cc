// SPDX-License-Identifier: MIT
#include "bench/bare_window.h"

#include <QtWidgets>
#include <vector>

namespace bench {
namespace {

/// Makes a copy of one widget, as a child of `parent`.
using WidgetMaker = std::function<QWidget*(QWidget* parent)>;
/// Makes a copy of one layout and of the widgets in it, which are children of `parent`.
using LayoutMaker = std::function<QLayout*(QWidget* parent)>;

LayoutMaker CopyOfLayout(const QLayout* layout);
WidgetMaker CopyOfWidget(const QWidget& widget);

WidgetMaker CopyOf(const QLabel& label) {
  return [text = label.text(), wraps = label.wordWrap(), leads = label.buddy() != nullptr](QWidget* parent) {
    auto* copy = new QLabel(text, parent);
    copy->setWordWrap(wraps);
    if (leads) copy->setBuddy(parent);  // shows the access key
    return copy;
  };
}

template <class Button>
WidgetMaker CopyOfCheckable(const Button& button) {
  return [text = button.text(), checked = button.isChecked()](QWidget* parent) {
    auto* copy = new Button(text, parent);
    copy->setChecked(checked);
    return copy;
  };
}
WidgetMaker CopyOf(const QCheckBox& button) { return CopyOfCheckable(button); }
WidgetMaker CopyOf(const QRadioButton& button) { return CopyOfCheckable(button); }

WidgetMaker CopyOf(const QPushButton& button) {
  return [text = button.text(), icon = button.icon(), size = button.iconSize()](QWidget* parent) {
    auto* copy = new QPushButton(icon, text, parent);
    copy->setIconSize(size);
    return copy;
  };
}

WidgetMaker CopyOf(const QToolButton& button) {
  return [arrow = button.arrowType()](QWidget* parent) {
    auto* copy = new QToolButton(parent);
    copy->setArrowType(arrow);
    return copy;
  };
}

WidgetMaker CopyOf(const QLineEdit& line) {
  return [text = line.text(), mode = line.echoMode()](QWidget* parent) {
    auto* copy = new QLineEdit(text, parent);
    copy->setEchoMode(mode);
    return copy;
  };
}

WidgetMaker CopyOf(const QPlainTextEdit& field) {
  return [text = field.toPlainText()](QWidget* parent) { return new QPlainTextEdit(text, parent); };
}

WidgetMaker CopyOf(const QComboBox& combo) {
  QStringList items;
  for (int i = 0; i < combo.count(); ++i) items << combo.itemText(i);
  return [items, current = combo.currentIndex(), editable = combo.isEditable()](QWidget* parent) {
    auto* copy = new QComboBox(parent);
    copy->setEditable(editable);
    copy->addItems(items);
    copy->setCurrentIndex(current);
    return copy;
  };
}

QStringList CellsOf(const QTreeWidgetItem& item) {
  QStringList cells;
  for (int column = 0; column < item.columnCount(); ++column) cells << item.text(column);
  return cells;
}

WidgetMaker CopyOf(const QTreeWidget& list) {
  std::vector<QStringList> rows;
  for (int i = 0; i < list.topLevelItemCount(); ++i) rows.push_back(CellsOf(*list.topLevelItem(i)));
  const int current = list.indexOfTopLevelItem(list.currentItem());
  std::vector<int> widths;
  for (int column = 0; column < list.columnCount(); ++column) widths.push_back(list.columnWidth(column));
  return [titles = CellsOf(*list.headerItem()), hidden = list.isHeaderHidden(), rows, current,
          widths](QWidget* parent) {
    auto* copy = new QTreeWidget(parent);
    copy->setRootIsDecorated(false);
    copy->setUniformRowHeights(true);
    copy->setHeaderLabels(titles);
    copy->setHeaderHidden(hidden);
    QList<QTreeWidgetItem*> items;
    for (const QStringList& row : rows) items << new QTreeWidgetItem(row);
    copy->addTopLevelItems(items);
    copy->setCurrentItem(copy->topLevelItem(current));
    int column = 0;
    for (const int width : widths) copy->setColumnWidth(column++, width);
    return copy;
  };
}

WidgetMaker CopyOf(const QTabWidget& tabs) {
  std::vector<std::pair<QString, WidgetMaker>> pages;
  for (int i = 0; i < tabs.count(); ++i) pages.emplace_back(tabs.tabText(i), CopyOfWidget(*tabs.widget(i)));
  return [pages](QWidget* parent) {
    auto* copy = new QTabWidget(parent);
    for (const auto& [text, make] : pages) copy->addTab(make(copy), text);
    return copy;
  };
}

WidgetMaker CopyOf(const QGroupBox& group) {
  return [text = group.title(), make_layout = CopyOfLayout(group.layout())](QWidget* parent) {
    auto* copy = new QGroupBox(text, parent);
    copy->setLayout(make_layout(copy));
    return copy;
  };
}

/// What draws itself, such as a strip of icons.
WidgetMaker CopyOf(const QAbstractScrollArea&) {
  return [](QWidget* parent) { return new QAbstractScrollArea(parent); };
}

WidgetMaker CopyOf(const QWidget& widget) {
  return [make_layout = CopyOfLayout(widget.layout())](QWidget* parent) {
    auto* copy = new QWidget(parent);
    if (make_layout) copy->setLayout(make_layout(copy));
    return copy;
  };
}

template <class Kind>
WidgetMaker Try(const QWidget& widget) {
  const auto* as_kind = qobject_cast<const Kind*>(&widget);
  return as_kind != nullptr ? CopyOf(*as_kind) : nullptr;
}

template <class... Kinds>
WidgetMaker CopyAsFirstOf(const QWidget& widget) {
  WidgetMaker make;
  static_cast<void>(((make = Try<Kinds>(widget)) || ...));
  return make;
}

WidgetMaker CopyOfWidget(const QWidget& widget) {
  WidgetMaker make =
      CopyAsFirstOf<QLabel, QCheckBox, QRadioButton, QPushButton, QToolButton, QLineEdit, QPlainTextEdit,
                    QComboBox, QTreeWidget, QTabWidget, QGroupBox, QAbstractScrollArea, QWidget>(widget);
  return [make, least = widget.minimumSize(), most = widget.maximumSize(), policy = widget.sizePolicy(),
          enabled = widget.isEnabled()](QWidget* parent) {
    QWidget* copy = make(parent);
    copy->setMinimumSize(least);
    copy->setMaximumSize(most);
    copy->setSizePolicy(policy);
    copy->setEnabled(enabled);
    return copy;
  };
}

/// A widget or a layout in its place; both makers are empty for a stretch.
struct Placed {
  WidgetMaker widget;
  LayoutMaker layout;
  Qt::Alignment alignment;
  int row = 0, column = 0, row_span = 1, column_span = 1, share = 0;
};

Placed PlacedOf(QLayoutItem& item) {
  Placed placed{{}, {}, item.alignment()};
  if (item.widget() != nullptr) placed.widget = CopyOfWidget(*item.widget());
  if (item.layout() != nullptr) placed.layout = CopyOfLayout(item.layout());
  return placed;
}

bool IsHidden(QLayoutItem& item) { return item.widget() != nullptr && item.widget()->isHidden(); }

LayoutMaker CopyOf(const QGridLayout& grid) {
  std::vector<Placed> items;
  std::vector<int> row_shares, column_shares;
  for (int i = 0; i < grid.count(); ++i) {
    if (IsHidden(*grid.itemAt(i))) continue;
    Placed& placed = items.emplace_back(PlacedOf(*grid.itemAt(i)));
    grid.getItemPosition(i, &placed.row, &placed.column, &placed.row_span, &placed.column_span);
  }
  for (int i = 0; i < grid.rowCount(); ++i) row_shares.push_back(grid.rowStretch(i));
  for (int i = 0; i < grid.columnCount(); ++i) column_shares.push_back(grid.columnStretch(i));
  return [=, margins = grid.contentsMargins()](QWidget* parent) {
    auto* copy = new QGridLayout;
    copy->setContentsMargins(margins);
    for (const Placed& at : items) {
      if (at.widget)
        copy->addWidget(at.widget(parent), at.row, at.column, at.row_span, at.column_span, at.alignment);
      if (at.layout)
        copy->addLayout(at.layout(parent), at.row, at.column, at.row_span, at.column_span, at.alignment);
    }
    int row = 0, column = 0;
    for (const int share : row_shares) copy->setRowStretch(row++, share);
    for (const int share : column_shares) copy->setColumnStretch(column++, share);
    return copy;
  };
}

LayoutMaker CopyOf(const QBoxLayout& box) {
  std::vector<Placed> items;
  for (int i = 0; i < box.count(); ++i) {
    if (IsHidden(*box.itemAt(i))) continue;
    items.emplace_back(PlacedOf(*box.itemAt(i))).share = box.stretch(i);
  }
  return [items, direction = box.direction(), margins = box.contentsMargins(),
          spacing = box.spacing()](QWidget* parent) {
    auto* copy = new QBoxLayout(direction);
    copy->setContentsMargins(margins);
    copy->setSpacing(spacing);
    for (const Placed& at : items) {
      if (at.widget)
        copy->addWidget(at.widget(parent), at.share, at.alignment);
      else if (at.layout)
        copy->addLayout(at.layout(parent), at.share);
      else
        copy->addStretch(at.share);
    }
    return copy;
  };
}

LayoutMaker CopyOfLayout(const QLayout* layout) {
  if (const auto* grid = qobject_cast<const QGridLayout*>(layout)) return CopyOf(*grid);
  if (const auto* box = qobject_cast<const QBoxLayout*>(layout)) return CopyOf(*box);
  return nullptr;
}

}  // namespace

BareWindow::BareWindow(const QWidget& shown) : make_layout_(CopyOfLayout(shown.layout())) {}

void BareWindow::Exec() const {
  QDialog window;
  window.setLayout(make_layout_(&window));
  window.exec();
}

}  // namespace bench
