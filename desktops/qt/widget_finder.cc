// SPDX-License-Identifier: MIT
#include "desktops/qt/widget_finder.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QToolButton>
#include <QTreeWidget>
#include <algorithm>
#include <functional>

#include "desktops/qt/texts.h"
#include "platform/ui/window.h"

namespace desktops::qt {
namespace {

using platform::ui::PlainLabel;

/// A widget's label and the widget that it stands for.
struct Labelled {
  std::string label;
  QWidget* widget;
};

/// The field in a group box that has the box's title for its label; null where there is none. (The first button of a
/// group of them bears the group's name too.)
QWidget* FieldTitledBy(const QGroupBox& box) {
  const QString title = ToQt(PlainLabel(FromQt(box.title())));
  const QList<QWidget*> inside = box.findChildren<QWidget*>();
  const auto field = std::ranges::find_if(inside, [&](const QWidget* child) {
    return child->accessibleName() == title && qobject_cast<const QAbstractButton*>(child) == nullptr;
  });
  return title.isEmpty() || field == inside.end() ? nullptr : *field;
}

Labelled LabelledBy(QWidget* widget) {
  if (auto* label = qobject_cast<QLabel*>(widget)) {
    return {FromQt(label->text()), label->buddy() != nullptr ? label->buddy() : label};
  }
  const auto* box = qobject_cast<QGroupBox*>(widget);
  QWidget* field = box != nullptr ? FieldTitledBy(*box) : nullptr;
  return {WidgetFinder::CaptionOf(*widget), field != nullptr ? field : widget};
}

bool InOtherTab(const QWidget& widget, const QWidget& window) {
  const auto* tabs = window.findChild<QTabWidget*>();
  if (tabs == nullptr || !tabs->isAncestorOf(&widget)) return false;
  const QWidget* page = tabs->currentWidget();
  return page == nullptr || (page != &widget && !page->isAncestorOf(&widget));
}

std::string SelectedText(const QTreeWidget& list) {
  const QList<QTreeWidgetItem*> selected = list.selectedItems();
  return selected.isEmpty() ? std::string() : WidgetFinder::RowText(*selected.first());
}

// A button that shows a picture has its key without a letter to read it from.
bool PictureHasKey(const QWidget& widget, char key) {
  const auto* button = qobject_cast<const QAbstractButton*>(&widget);
  if (button == nullptr || !button->text().isEmpty()) return false;
  return button->shortcut() == QKeySequence(QStringLiteral("Alt+") + QLatin1Char(key));
}

QRect InWindow(const QWidget& widget) {
  return QRect(widget.mapTo(widget.window(), QPoint(0, 0)), widget.size());
}

}  // namespace

std::string WidgetFinder::CaptionOf(const QWidget& widget) {
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) return FromQt(button->text());
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) return FromQt(label->text());
  const auto* box = qobject_cast<const QGroupBox*>(&widget);
  return box != nullptr ? FromQt(box->title()) : std::string();
}

std::string WidgetFinder::TextOf(const QWidget& widget) {
  if (const auto* line = qobject_cast<const QLineEdit*>(&widget)) return FromQt(line->text());
  if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) return FromQt(combo->currentText());
  if (const auto* list = qobject_cast<const QTreeWidget*>(&widget)) return SelectedText(*list);
  if (const auto* text = qobject_cast<const QPlainTextEdit*>(&widget)) {
    return FromQt(text->toPlainText().replace('\n', QLatin1String("\r\n")));
  }
  return CaptionOf(widget);
}

std::string WidgetFinder::RowText(const QTreeWidgetItem& row) {
  QStringList cells;
  for (int i = 0; i < row.columnCount(); ++i) cells << row.text(i);
  return FromQt(cells.join('\t'));
}

bool WidgetFinder::HasAccessKey(char key) const {
  const std::vector<QWidget*> widgets = Widgets();
  return std::any_of(widgets.begin(), widgets.end(), [key](const QWidget* widget) {
    const bool has_key = platform::ui::AccessKey(CaptionOf(*widget)) == key || PictureHasKey(*widget, key);
    return widget->isVisible() && widget->isEnabled() && has_key;
  });
}

bool WidgetFinder::IsAnyButtonDown() const {
  const QList<QAbstractButton*> buttons = window_.findChildren<QAbstractButton*>();
  return std::any_of(buttons.begin(), buttons.end(),
                     [](const QAbstractButton* button) { return button->isDown(); });
}

std::vector<QWidget*> WidgetFinder::Widgets() const {
  std::vector<QWidget*> widgets;
  for (QWidget* widget : window_.findChildren<QWidget*>()) {
    if (widget->window() == &window_ && !InOtherTab(*widget, window_)) widgets.push_back(widget);
  }
  return widgets;
}

QWidget* WidgetFinder::ByLabel(const std::string& label) const {
  const std::vector<QWidget*> widgets = Widgets();
  const auto find = [&](const std::function<QWidget*(QWidget*)>& match) {
    QWidget* hidden = nullptr;
    for (QWidget* candidate : widgets) {
      QWidget* widget = match(candidate);
      if (widget != nullptr && widget->isVisible()) return widget;
      if (hidden == nullptr) hidden = widget;
    }
    return hidden;
  };
  QWidget* found = find([&](QWidget* candidate) {
    const Labelled labelled = LabelledBy(candidate);
    return labelled.label == label ? labelled.widget : nullptr;
  });
  if (found != nullptr) return found;
  return find([&](QWidget* candidate) -> QWidget* {
    const Labelled labelled = LabelledBy(candidate);
    if (PlainLabel(labelled.label) == PlainLabel(label)) return labelled.widget;
    return FromQt(candidate->accessibleName()) == PlainLabel(label) ? candidate : nullptr;
  });
}

template <typename Matches>
QAbstractButton* WidgetFinder::NearestRight(const QWidget& widget, Matches matches) const {
  const QRect place = InWindow(widget);
  QAbstractButton* nearest = nullptr;
  for (QWidget* candidate : Widgets()) {
    auto* button = qobject_cast<QAbstractButton*>(candidate);
    if (button == nullptr || !button->isVisible() || !matches(*button)) continue;
    const QRect other = InWindow(*button);
    const bool same_line = other.top() <= place.bottom() && other.bottom() >= place.top();
    if (!same_line || other.left() < place.left()) continue;
    if (nearest == nullptr || other.left() < InWindow(*nearest).left()) nearest = button;
  }
  return nearest;
}

QAbstractButton* WidgetFinder::ButtonBeside(const QWidget& widget, const std::string& caption) const {
  return NearestRight(widget, [&](const QAbstractButton& button) { return CaptionOf(button) == caption; });
}

QAbstractButton* WidgetFinder::ArrowBeside(const QWidget& widget, int direction) const {
  const Qt::ArrowType arrow = direction > 0 ? Qt::UpArrow : Qt::DownArrow;
  return NearestRight(widget, [&](const QAbstractButton& button) {
    const auto* tool = qobject_cast<const QToolButton*>(&button);
    return tool != nullptr && tool->arrowType() == arrow;
  });
}

std::string WidgetFinder::Screen() const {
  std::string screen = "\"" + FromQt(window_.windowTitle()) + "\"\n";
  for (const QWidget* widget : Widgets()) {
    const std::string text = TextOf(*widget);
    if (!widget->isVisible() || text.empty()) continue;
    screen += std::string("  ") + widget->metaObject()->className() + " \"" + text + "\"";
    screen += widget->isEnabled() ? "\n" : " (disabled)\n";
  }
  return screen;
}

}  // namespace desktops::qt
