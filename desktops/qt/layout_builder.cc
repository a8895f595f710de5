// SPDX-License-Identifier: MIT
#include "desktops/qt/layout_builder.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QStyle>
#include <algorithm>

#include "desktops/qt/form_view.h"
#include "desktops/qt/layout_traits.h"
#include "desktops/qt/texts.h"
#include "platform/ui/edit.h"
#include "platform/ui/spin.h"

namespace desktops::qt {
namespace {

using platform::ui::Control;
using platform::ui::LayoutNode;
using Kind = LayoutNode::Kind;

// Narrower forms wrap their notes to columns that are hard to read.
constexpr int kLeastWidth = 340;
// A field's frame, and room for the caret.
constexpr int kFieldPadding = 14;

// The width of a field that shows so many average characters; a combo box has its arrow beside them.
int FieldWidth(const QWidget& field, int characters) {
  const bool has_arrow = qobject_cast<const QComboBox*>(&field) != nullptr;
  const int arrow = has_arrow ? field.style()->pixelMetric(QStyle::PM_ScrollBarExtent) : 0;
  return field.fontMetrics().averageCharWidth() * characters + kFieldPadding + arrow;
}

/// Gives a row or column of a grid its share of the room only while the widget in it is shown; a grid would
/// keep the room free for a hidden one.
class ShareWhileShown : public QObject {
 public:
  ShareWhileShown(QGridLayout* grid, Qt::Orientation direction, int index, int share, QWidget* widget)
      : QObject(widget), grid_(grid), direction_(direction), index_(index), share_(share) {
    widget->installEventFilter(this);
    Set(share);
  }

 private:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::ShowToParent) Set(share_);
    if (event->type() == QEvent::HideToParent) Set(0);
    return false;
  }
  void Set(int share) {
    if (grid_ == nullptr) return;
    if (direction_ == Qt::Horizontal) {
      grid_->setColumnStretch(index_, share);
    } else {
      grid_->setRowStretch(index_, share);
    }
  }

  QPointer<QGridLayout> grid_;
  Qt::Orientation direction_;
  int index_, share_;
};

class Builder {
 public:
  explicit Builder(FormView& view) : view_(view) {}

  QLayout* Column(const std::vector<LayoutNode>& children);

 private:
  QLayout* Row(const std::vector<LayoutNode>& children, bool first_labelled);
  QLayout* Grid(const std::vector<LayoutNode>& rows);
  int AddToGrid(QGridLayout& grid, int row, int column, const LayoutNode& child);
  QLayout* Buttons(const std::vector<LayoutNode>& buttons, QBoxLayout::Direction direction);
  void AddToColumn(QGridLayout& grid, int row, const LayoutNode& child, bool only_buttons);
  int AddToRow(QGridLayout& grid, int column, const LayoutNode& child, bool labelled, bool tall);
  void Add(QGridLayout& grid, const LayoutNode& node, int row, int column, int span, Qt::Alignment alignment);
  void AddEditor(QGridLayout& grid, const LayoutNode& node, int row, int column, int span,
                 Qt::Alignment alignment);
  void AddOver(QGridLayout& grid, const LayoutNode& node, int row, int column, int span);
  QLabel* Label(Control& control);
  QGroupBox* Group(const LayoutNode& node);
  QLabel* Note(const std::string& text);
  void Share(QGridLayout& grid, Qt::Orientation direction, int index, const LayoutNode& node, int share);

  FormView& view_;
};

QLabel* Builder::Label(Control& control) {
  auto* label = new QLabel(&view_);
  view_.Add(control).SetLabelWidget(label);
  return label;
}

QLabel* Builder::Note(const std::string& text) {
  auto* note = new QLabel(ToQt(text), &view_);
  note->setTextFormat(Qt::PlainText);
  note->setWordWrap(true);
  return note;
}

QGroupBox* Builder::Group(const LayoutNode& node) {
  auto* group = new QGroupBox(ToQt(node.text), &view_);
  group->setLayout(Column(node.children));
  return group;
}

void Builder::Share(QGridLayout& grid, Qt::Orientation direction, int index, const LayoutNode& node,
                    int share) {
  if (node.control != nullptr) {
    QWidget* widget = view_.Add(*node.control).OwnedWidget();
    new ShareWhileShown(&grid, direction, index, share, widget);
  } else if (direction == Qt::Horizontal) {
    grid.setColumnStretch(index, share);
  } else {
    grid.setRowStretch(index, share);
  }
}

// A spin control has no place of its own: it goes where its buddy goes.
void Builder::AddEditor(QGridLayout& grid, const LayoutNode& node, int row, int column, int span,
                        Qt::Alignment alignment) {
  Control& control = *node.control;
  if (dynamic_cast<platform::ui::Spin*>(&control) != nullptr) return;
  QWidget* widget = view_.Add(control).OwnedWidget();
  if (node.characters > 0) {
    widget->setFixedWidth(FieldWidth(*widget, node.characters));
    alignment |= Qt::AlignLeft;
  }
  platform::ui::Spin* spin = SpinOf(control);
  if (spin == nullptr) {
    grid.addWidget(widget, row, column, 1, span, alignment);
    return;
  }
  auto* pair = new QHBoxLayout;
  pair->setSpacing(0);
  pair->addWidget(widget);
  pair->addWidget(view_.Add(*spin).OwnedWidget());
  pair->addStretch();
  grid.addLayout(pair, row, column, 1, span);
}

void Builder::AddOver(QGridLayout& grid, const LayoutNode& node, int row, int column, int span) {
  if (!CarriesLabel(*node.control) && !node.control->Label().empty()) {
    grid.addWidget(Label(*node.control), row, column, 1, span);
  }
  AddEditor(grid, node, row + 1, column, span, {});
}

void Builder::Add(QGridLayout& grid, const LayoutNode& node, int row, int column, int span,
                  Qt::Alignment alignment) {
  switch (node.kind) {
    case Kind::kColumn:
      grid.addLayout(Column(node.children), row, column, 1, span);
      break;
    case Kind::kRow:
      grid.addLayout(Row(node.children, true), row, column, 1, span);
      break;
    case Kind::kGrid:
      grid.addLayout(Grid(node.children), row, column, 1, span);
      break;
    case Kind::kButtonColumn:
      grid.addLayout(Buttons(node.children, QBoxLayout::TopToBottom), row, column, 1, span);
      break;
    case Kind::kButtonRow:
      grid.addLayout(Buttons(node.children, QBoxLayout::LeftToRight), row, column, 1, span);
      break;
    case Kind::kGroup:
      grid.addWidget(Group(node), row, column, 1, span);
      break;
    case Kind::kNote:
      grid.addWidget(Note(node.text), row, column, 1, span);
      break;
    case Kind::kField:
    case Kind::kBefore:
    case Kind::kOver:
    case Kind::kBare:
      AddEditor(grid, node, row, column, span, alignment);
      break;
    case Kind::kStretch:
      break;
  }
}

// A field's label stands in the first of two columns; so does the one that a row of fields begins with.
void Builder::AddToColumn(QGridLayout& grid, int row, const LayoutNode& child, bool only_buttons) {
  const bool labelled_row =
      child.kind == Kind::kRow && !child.children.empty() && HasLabelOnLeft(child.children.front());
  if (HasLabelOnLeft(child) || labelled_row) {
    const LayoutNode& field = labelled_row ? child.children.front() : child;
    grid.addWidget(Label(*field.control), row, 0, IsTall(child) ? Qt::AlignTop : Qt::Alignment());
    if (labelled_row) {
      grid.addLayout(Row(child.children, false), row, 1);
    } else {
      AddEditor(grid, field, row, 1, 1, {});
    }
  } else if (child.kind == Kind::kOver) {
    AddOver(grid, child, row, 0, 2);
    ++row;
  } else {
    const bool narrow = IsButton(child) && !only_buttons;
    Add(grid, child, row, 0, 2, narrow ? Qt::AlignLeft : Qt::Alignment());
  }
  if (child.kind == Kind::kStretch || IsTall(child)) Share(grid, Qt::Vertical, row, child, child.weight);
}

QLayout* Builder::Column(const std::vector<LayoutNode>& children) {
  auto* grid = new QGridLayout;
  const bool only_buttons = std::all_of(children.begin(), children.end(), [](const LayoutNode& child) {
    return IsButton(child) || child.kind == Kind::kStretch;
  });
  bool filled = false;
  int row = 0;
  for (const LayoutNode& child : children) {
    AddToColumn(*grid, row, child, only_buttons);
    filled = filled || child.kind == Kind::kStretch || IsTall(child);
    row += 2;  // a label above takes a row of its own
  }
  grid->setColumnStretch(1, 1);
  if (!filled) grid->setRowStretch(row, 1);
  return grid;
}

// A label and its field take two columns, so that those of all rows stand one under the other.
int Builder::AddToGrid(QGridLayout& grid, int row, int column, const LayoutNode& child) {
  if (HasLabelOnLeft(child)) grid.addWidget(Label(*child.control), row, column++);
  Add(grid, child, row, column, 1, IsButton(child) ? Qt::AlignLeft : Qt::Alignment());
  if (IsWide(child) && child.characters == 0) grid.setColumnStretch(column, child.weight);
  return column + 1;
}

QLayout* Builder::Grid(const std::vector<LayoutNode>& rows) {
  auto* grid = new QGridLayout;
  for (int row = 0; row < static_cast<int>(rows.size()); ++row) {
    const LayoutNode& node = rows[static_cast<std::size_t>(row)];
    int column = 0;
    if (node.kind == Kind::kRow) {
      for (const LayoutNode& child : node.children) column = AddToGrid(*grid, row, column, child);
    } else {
      AddToGrid(*grid, row, column, node);
    }
  }
  return grid;
}

QLayout* Builder::Buttons(const std::vector<LayoutNode>& buttons, QBoxLayout::Direction direction) {
  auto* line = new QBoxLayout(direction);
  if (direction == QBoxLayout::LeftToRight) line->addStretch();
  std::vector<QWidget*> alike;
  for (const LayoutNode& node : buttons) {
    if (node.control == nullptr) {
      line->addStretch();
    } else {
      line->addWidget(alike.emplace_back(view_.Add(*node.control).OwnedWidget()));
    }
  }
  view_.KeepEqualWidths(std::move(alike));
  if (direction == QBoxLayout::TopToBottom) line->addStretch();
  return line;
}

// Places one child of a row from `column` on, in the lower of two lines: the upper is for labels above.
// Answers the next free column.
int Builder::AddToRow(QGridLayout& grid, int column, const LayoutNode& child, bool labelled, bool tall) {
  const Qt::Alignment top = tall ? Qt::AlignTop : Qt::Alignment();
  if (child.kind == Kind::kOver) {
    AddOver(grid, child, 0, column, 1);
  } else {
    if (labelled && HasLabelOnLeft(child)) grid.addWidget(Label(*child.control), 1, column++, top);
    Add(grid, child, 1, column, 1, IsTall(child) || IsWide(child) ? Qt::Alignment() : top);
  }
  if (child.kind == Kind::kStretch || IsWide(child)) Share(grid, Qt::Horizontal, column, child, child.weight);
  if (child.kind == Kind::kBefore) grid.addWidget(Label(*child.control), 1, ++column, top);
  return column + 1;
}

QLayout* Builder::Row(const std::vector<LayoutNode>& children, bool first_labelled) {
  auto* grid = new QGridLayout;
  const bool tall = std::any_of(children.begin(), children.end(), IsTall);
  bool filled = false, labelled = first_labelled;
  int column = 0;
  for (const LayoutNode& child : children) {
    column = AddToRow(*grid, column, child, labelled, tall);
    labelled = true;
    filled = filled || child.kind == Kind::kStretch || IsWide(child);
  }
  grid->setRowStretch(1, 1);
  if (!filled) grid->setColumnStretch(column, 1);
  return grid;
}

}  // namespace

void BuildLayout(FormView& view) {
  const LayoutNode& own = view.ShownForm().Layout();
  const LayoutNode layout = own.children.empty() ? DefaultLayout(view.ShownForm()) : own;
  Builder builder(view);
  const bool is_column = layout.kind == Kind::kColumn;
  if (IsWide(layout)) view.setMinimumWidth(kLeastWidth);
  view.setLayout(builder.Column(is_column ? layout.children : std::vector{layout}));
}

}  // namespace desktops::qt
