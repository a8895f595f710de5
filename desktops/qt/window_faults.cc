// SPDX-License-Identifier: MIT
#include "desktops/qt/window_faults.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QTabBar>
#include <algorithm>
#include <map>

#include "desktops/qt/texts.h"
#include "desktops/qt/widget_finder.h"
#include "platform/ui/window.h"

namespace desktops::qt {
namespace {

using Faults = std::vector<std::string>;

QString SpokenName(QWidget& widget) {
  QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&widget);
  return spoken != nullptr ? spoken->text(QAccessible::Name) : QString();
}

std::string Named(QWidget& widget) {
  std::string name = WidgetFinder::CaptionOf(widget);
  if (name.empty()) name = FromQt(SpokenName(widget));
  return '"' + (name.empty() ? widget.metaObject()->className() : name) + '"';
}

std::vector<QWidget*> VisibleIn(const QWidget& window) {
  std::vector<QWidget*> visible;
  for (QWidget* widget : window.findChildren<QWidget*>())
    if (widget->window() == &window && widget->isVisible()) visible.push_back(widget);
  return visible;
}

void AddTabs(const QWidget& widget, std::vector<std::string>& texts) {
  const auto* tabs = qobject_cast<const QTabBar*>(&widget);
  for (int i = 0; tabs != nullptr && i < tabs->count(); ++i) texts.push_back(FromQt(tabs->tabText(i)));
}

bool LeadsNowhere(const QWidget& widget) {
  const auto* label = qobject_cast<const QLabel*>(&widget);
  if (label == nullptr || platform::ui::AccessKey(FromQt(label->text())) == 0) return false;
  return label->buddy() == nullptr || label->buddy()->focusPolicy() == Qt::NoFocus;
}

// Tab stops at one button of a group of radio buttons; the arrow keys lead to the others.
bool TakesTab(const QWidget& widget) {
  const bool in_reach =
      widget.isVisible() && widget.isEnabled() && (widget.focusPolicy() & Qt::TabFocus) != 0;
  return in_reach && qobject_cast<const QRadioButton*>(&widget) == nullptr && widget.focusProxy() == nullptr;
}

QRect PlaceOf(const QWidget& widget) { return {widget.mapTo(widget.window(), QPoint(0, 0)), widget.size()}; }

// The next control may stand in the same line further right, in a line below, or at the head of a column further right.
bool GoesBack(const QRect& from, const QRect& to) {
  const bool same_line = to.top() <= from.bottom() && to.bottom() >= from.top();
  return same_line ? to.left() < from.left() : to.bottom() < from.top() && to.left() < from.right();
}

std::vector<QWidget*> InTabOrder(const QWidget& window) {
  std::vector<QWidget*> order;
  for (QWidget* widget = window.nextInFocusChain(); widget != &window; widget = widget->nextInFocusChain())
    if (window.isAncestorOf(widget) && widget->window() == &window && TakesTab(*widget))
      order.push_back(widget);
  return order;
}

}  // namespace

Faults AccessKeyFaults(const QWidget& window) {
  Faults faults;
  std::map<char, std::string> owners;
  for (QWidget* widget : VisibleIn(window)) {
    if (LeadsNowhere(*widget)) faults.push_back(Named(*widget) + " has a key that leads nowhere");
    std::vector<std::string> texts = {WidgetFinder::CaptionOf(*widget)};
    AddTabs(*widget, texts);
    for (const std::string& text : texts) {
      const char key = platform::ui::AccessKey(text);
      const auto [owner, is_new] = owners.emplace(key, text);
      if (key != 0 && !is_new) faults.push_back('"' + text + "\" has the key of \"" + owner->second + '"');
    }
  }
  return faults;
}

Faults TabOrderFaults(const QWidget& window) {
  Faults faults;
  const std::vector<QWidget*> order = InTabOrder(window);
  for (std::size_t i = 1; i < order.size(); ++i)
    if (GoesBack(PlaceOf(*order[i - 1]), PlaceOf(*order[i])))
      faults.push_back("Tab goes back from " + Named(*order[i - 1]) + " to " + Named(*order[i]));
  return faults;
}

Faults NameFaults(const QWidget& window) {
  Faults faults;
  for (QWidget* widget : InTabOrder(window)) {
    const QString name = SpokenName(*widget);
    if (std::none_of(name.begin(), name.end(), [](QChar c) { return c.isLetterOrNumber(); }))
      faults.push_back(Named(*widget) + " in " + FromQt(window.windowTitle()) + " has no name to say");
    const QAccessible::Role role = QAccessible::queryAccessibleInterface(widget)->role();
    if (role == QAccessible::NoRole || role == QAccessible::Client)
      faults.push_back(Named(*widget) + " has no role");
  }
  return faults;
}

}  // namespace desktops::qt
