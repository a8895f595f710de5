// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ui/control.h"

namespace platform::ui {

/// A plain value attached to an item or row. Lists never own what it may point to.
using ItemData = std::uintptr_t;

/// The items that combo boxes and list boxes share. A sorted list orders without regard to case as items are
/// added. Filling or selecting by program reports nothing.
class ItemList : public Control {
 public:
  ItemList(Form& form, int id, std::string label, bool sorted)
      : Control(form, id, std::move(label)), sorted_(sorted) {}

  bool Sorted() const { return sorted_; }
  int Count() const { return static_cast<int>(items_.size()); }
  /// Adds an item and answers its index. In a sorted list that is its place, and the current item stays
  /// current.
  int Add(std::string_view text, ItemData data = 0);
  void SetData(int index, ItemData data);
  /// Leaves the field of an editable combo box as it is.
  void RemoveAll();

  /// Text and data of an item; empty and 0 for an index out of range.
  const std::string& ItemText(int index) const;
  ItemData Data(int index) const;

  /// The current item's index, or -1.
  int Current() const { return current_; }
  /// -1 or a valid index; anything else counts as -1.
  virtual void Select(int index);
  /// The first item with exactly that text without regard to case, or -1.
  int FindText(std::string_view text) const;
  /// The first item whose bytes are exactly those, or -1.
  int FindBytes(std::string_view text) const;
  int FindData(ItemData data) const;

  /// A person chose an item; no change when it is the current one already.
  virtual void OnChoose(int index);

 private:
  struct Item {
    std::string text;
    ItemData data;
  };

  bool sorted_;
  std::deque<Item> storage_;  // items stay where they are made: a sorted list moves pointers only
  std::vector<Item*> items_;
  int current_ = -1;
};

/// A drop-down list, or a drop-down with an editable field.
class ComboBox : public ItemList {
 public:
  ComboBox(Form& form, int id, std::string label, bool sorted = false, bool editable = false)
      : ItemList(form, id, std::move(label), sorted), editable_(editable) {}

  bool Editable() const { return editable_; }
  /// The field's text: the current item's text in a list, what was typed or chosen in an editable one.
  std::string Text() const;
  /// Editable ones only. An item of exactly that text becomes the current one.
  void SetText(std::string_view text);
  std::size_t Limit() const { return limit_; }
  void SetLimit(std::size_t bytes);

  void Select(int index) override;
  /// A person's typing made this the field's text (cut to the limit); editable ones only.
  void OnTextEdited(std::string_view text);

 private:
  bool editable_;
  std::string text_;
  std::size_t limit_ = static_cast<std::size_t>(-1);
};

/// A list that shows its items. `tab_stops`: a tab in a text starts the next column.
class ListBox : public ItemList {
 public:
  ListBox(Form& form, int id, std::string label, bool sorted = false, bool tab_stops = false)
      : ItemList(form, id, std::move(label), sorted), tab_stops_(tab_stops) {}

  bool TabStops() const { return tab_stops_; }
  /// Where the second column and those after it start, counted in average characters from the left. Without
  /// positions a column is as wide as its texts.
  void SetTabStops(std::vector<int> average_characters);
  const std::vector<int>& TabPositions() const { return tab_positions_; }
  void SetOnDoubleClick(std::function<void()> handler) { on_double_click_ = std::move(handler); }
  /// A person double-clicked the item, which is chosen first.
  void OnDoubleClick(int index);
  /// A person typed a letter: chooses the next item that begins with it, round the end. A bracket before it does not count.
  void OnTyped(std::string_view letter);

 private:
  bool tab_stops_;
  std::vector<int> tab_positions_;
  std::function<void()> on_double_click_;
};

/// A report: columns, rows of texts, one row selected and one focused at most. The change handler hears of
/// every new selection that a person makes.
class ListView : public Control {
 public:
  struct Column {
    std::string title;
    int margin;  ///< pixels to add to the title's own width
  };

  ListView(Form& form, int id, std::string label) : Control(form, id, std::move(label)) {}

  void AddColumn(std::string title, int margin);
  const std::vector<Column>& Columns() const { return columns_; }
  int AddRow(std::vector<std::string> cells, ItemData data = 0);
  void RemoveAllRows();
  int RowCount() const { return static_cast<int>(rows_.size()); }
  /// Empty for a row or column out of range.
  const std::string& Cell(int row, int column) const;
  ItemData RowData(int row) const;

  int SelectedRow() const { return selected_; }
  int FocusedRow() const { return focused_; }
  /// -1 for none.
  void SelectRow(int row);
  void FocusRow(int row);

  int FirstVisibleRow() const { return first_visible_; }
  int RowsPerPage() const { return rows_per_page_; }
  /// The row under the last mouse event, or -1; told by the desktop.
  int RowUnderCursor() const { return under_cursor_; }

  void SetOnClick(std::function<void()> handler) { on_click_ = std::move(handler); }
  void SetOnDoubleClick(std::function<void()> handler) { on_double_click_ = std::move(handler); }
  /// Keys pressed while the list has the focus, after the list itself acted on arrows.
  void SetOnKey(std::function<void(Key)> handler) { on_key_ = std::move(handler); }

  /// A person clicked at a row (-1: below the last). Clicks select and focus it.
  void OnClickAt(int row);
  void OnDoubleClickAt(int row);
  /// Arrows, Home, End and the page keys move to another row.
  void OnKeyDown(Key key) override;
  /// A person typed a letter: as in a list box.
  void OnTyped(std::string_view letter);
  /// The desktop's view of the rows changed.
  void OnScrolled(int first_visible, int rows_per_page);

 private:
  struct Row {
    std::vector<std::string> cells;
    ItemData data;
  };

  void MoveTo(int row);
  void SelectByPerson(int row);
  int RowAfter(Key key) const;

  std::vector<Column> columns_;
  std::vector<Row> rows_;
  int selected_ = -1, focused_ = -1, under_cursor_ = -1;
  int first_visible_ = 0, rows_per_page_ = 10;
  std::function<void()> on_click_, on_double_click_;
  std::function<void(Key)> on_key_;
};

}  // namespace platform::ui
