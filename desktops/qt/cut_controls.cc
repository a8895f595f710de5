// SPDX-License-Identifier: MIT
#include "desktops/qt/cut_controls.h"

#include <QAbstractScrollArea>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QToolButton>

#include "desktops/qt/texts.h"

namespace desktops::qt {
namespace {

template <typename... Kinds>
bool IsAnyOf(const QWidget& widget) {
  return ((qobject_cast<const Kinds*>(&widget) != nullptr) || ...);
}

// Parts of a control, as the viewport of a list or the field of a combo box, are the toolkit's affair.
bool IsControl(const QWidget& widget) {
  const bool is_part = IsAnyOf<QAbstractScrollArea, QComboBox, QTabBar>(*widget.parentWidget());
  if (is_part) return IsAnyOf<QHeaderView>(widget);
  return IsAnyOf<QAbstractButton, QAbstractScrollArea, QComboBox, QGroupBox, QLabel, QLineEdit, QTabBar>(
      widget);
}

QString CaptionOf(const QWidget& widget) {
  for (const char* property : {"accessibleName", "text", "title"}) {
    const QString caption = widget.property(property).toString();
    if (!caption.isEmpty()) return caption;
  }
  return QLatin1String(widget.metaObject()->className());
}

// A combo box may be narrower than its widest item; what it shows now must be seen.
bool CutsChosenItem(const QComboBox& combo) {
  QStyleOptionComboBox option;
  option.initFrom(&combo);
  const QRect field =
      combo.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &combo);
  return combo.fontMetrics().horizontalAdvance(combo.currentText()) > field.width();
}

// Small buttons beside a field are narrower than the style would make them.
bool CutsCaption(const QPushButton& button) {
  if (button.text().isEmpty())
    return button.width() < button.iconSize().width() || button.height() < button.iconSize().height();
  return button.fontMetrics().size(Qt::TextShowMnemonic, button.text()).width() > button.width();
}

bool CutsTitle(const QHeaderView& header) {
  for (int i = 0; i < header.count(); ++i) {
    const QString title = header.model()->headerData(i, header.orientation()).toString();
    if (header.fontMetrics().horizontalAdvance(title) > header.sectionSize(i)) return true;
  }
  return false;
}

bool CutsText(const QWidget& widget) {
  if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) return CutsChosenItem(*combo);
  if (const auto* header = qobject_cast<const QHeaderView*>(&widget)) return CutsTitle(*header);
  if (const auto* button = qobject_cast<const QPushButton*>(&widget)) return CutsCaption(*button);
  const auto* label = qobject_cast<const QLabel*>(&widget);
  return label != nullptr && label->wordWrap() && label->heightForWidth(label->width()) > label->height();
}

// Fields and small buttons may be narrower than the style would make them; arrows have no text to lose.
bool IsTooSmall(const QWidget& widget) {
  if (IsAnyOf<QHeaderView, QToolButton>(widget)) return false;
  const QSize least = widget.minimumSizeHint().expandedTo(widget.minimumSize());
  const bool any_width = IsAnyOf<QComboBox, QLineEdit, QPushButton>(widget);
  return widget.height() < least.height() || (!any_width && widget.width() < least.width());
}

bool Scrolls(const QWidget& contents) {
  const QWidget* view = contents.parentWidget();
  return view != nullptr && qobject_cast<const QScrollArea*>(view->parentWidget()) != nullptr;
}

// What scrolls need not be in view.
bool StandsOutside(const QWidget& widget, const QWidget& window) {
  QRect place = widget.rect();
  for (const QWidget* at = &widget; at != &window && !Scrolls(*at); at = at->parentWidget()) {
    place.translate(at->pos());
    if (!at->parentWidget()->rect().contains(place)) return true;
  }
  return false;
}

std::string FaultOf(const QWidget& widget, const QWidget& window) {
  if (IsTooSmall(widget)) return "is too small";
  if (StandsOutside(widget, window)) return "stands outside";
  return CutsText(widget) ? "has its text cut" : "";
}

}  // namespace

std::vector<std::string> CutControls(const QWidget& window) {
  std::vector<std::string> cut;
  for (const QWidget* widget : window.findChildren<QWidget*>()) {
    if (widget->window() != &window || !widget->isVisible() || !IsControl(*widget)) continue;
    const std::string fault = FaultOf(*widget, window);
    if (!fault.empty()) cut.push_back('"' + FromQt(CaptionOf(*widget)) + "\" " + fault);
  }
  return cut;
}

}  // namespace desktops::qt
