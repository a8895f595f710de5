// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>
#include <QWidget>
#include <string>
#include <vector>

class QTreeWidgetItem;

namespace desktops::qt {

/// Finds widgets of one window by what a person reads beside or on them.
class WidgetFinder {
 public:
  explicit WidgetFinder(QWidget& window) : window_(window) {}

  /// The widget that the label belongs to, hidden ones included, or null: the buddy of a label beside it, a
  /// button or static text, a box of options, or what a screen reader calls by that name. A label written
  /// exactly so comes before one that differs in its access key, and a visible one before a hidden one.
  QWidget* ByLabel(const std::string& label) const;
  /// The visible button with that caption that stands in the same line as `widget`, nearest to its right, or
  /// null.
  QAbstractButton* ButtonBeside(const QWidget& widget, const std::string& caption) const;
  /// The visible up (+1) or down (-1) arrow that stands beside `widget`, or null.
  QAbstractButton* ArrowBeside(const QWidget& widget, int direction) const;
  /// Whether a visible label, button or box has that access key (in lower case).
  bool HasAccessKey(char key) const;
  bool IsAnyButtonDown() const;
  /// One line for each visible label, text, field and button.
  std::string Screen() const;

  /// What is written on the screen about a widget of its own: "" for those that have no text.
  static std::string CaptionOf(const QWidget& widget);
  /// The text that stands in a field, as bytes of the program's text.
  static std::string TextOf(const QWidget& widget);
  /// The cells of a row, with tabs between them.
  static std::string RowText(const QTreeWidgetItem& row);

 private:
  /// All widgets of the page in front, and the window's own.
  std::vector<QWidget*> Widgets() const;
  template <typename Matches>
  QAbstractButton* NearestRight(const QWidget& widget, Matches matches) const;

  QWidget& window_;
};

}  // namespace desktops::qt
