// SPDX-License-Identifier: MIT
#include "platform/ui/lists.h"

#include <algorithm>
#include <cctype>
#include <utility>

#include "platform/base/utf8.h"

namespace platform::ui {
namespace {

const std::string kEmpty;

/// Whether someone who types `letter` means the text. Brackets before a name are not typed.
bool IsMeantBy(std::string_view letter, std::string_view text) {
  if (StartsWithIgnoringCase(text, letter)) return true;
  const auto is_mark = [](unsigned char c) { return c < 0x80 && std::isalnum(c) == 0; };
  while (!text.empty() && is_mark(static_cast<unsigned char>(text.front()))) text.remove_prefix(1);
  return StartsWithIgnoringCase(text, letter);
}

/// The next after `current` whose text is meant, round the end; -1 for none.
template <class TextOf>
int NextMeantBy(std::string_view letter, int current, int count, TextOf text_of) {
  for (int step = 1; step <= count; ++step)
    if (const int next = (current + step) % count; IsMeantBy(letter, text_of(next))) return next;
  return -1;
}

bool InRange(int index, std::size_t count) { return index >= 0 && static_cast<std::size_t>(index) < count; }

template <typename Items, typename Predicate>
int IndexOf(const Items& items, Predicate matches) {
  const auto found = std::ranges::find_if(items, matches);
  return found != items.end() ? static_cast<int>(found - items.begin()) : -1;
}

}  // namespace

int ItemList::Add(std::string_view text, ItemData data) {
  auto place = items_.end();
  if (sorted_) {
    place = std::ranges::upper_bound(items_, text, LessIgnoringCase, &Item::text);
  }
  const int index = static_cast<int>(place - items_.begin());
  items_.insert(place, &storage_.emplace_back(Item{std::string(text), data}));
  if (current_ >= index) ++current_;
  Notify(Change::kItems);
  return index;
}

void ItemList::SetData(int index, ItemData data) {
  if (InRange(index, items_.size())) items_[static_cast<std::size_t>(index)]->data = data;
}

void ItemList::RemoveAll() {
  items_.clear();
  storage_.clear();
  current_ = -1;
  Notify(Change::kItems);
}

const std::string& ItemList::ItemText(int index) const {
  return InRange(index, items_.size()) ? items_[static_cast<std::size_t>(index)]->text : kEmpty;
}

ItemData ItemList::Data(int index) const {
  return InRange(index, items_.size()) ? items_[static_cast<std::size_t>(index)]->data : 0;
}

void ItemList::Select(int index) {
  current_ = InRange(index, items_.size()) ? index : -1;
  Notify(Change::kCurrent);
}

int ItemList::FindText(std::string_view text) const {
  return IndexOf(items_, [text](const Item* item) { return EqualIgnoringCase(item->text, text); });
}

int ItemList::FindBytes(std::string_view text) const {
  return IndexOf(items_, [text](const Item* item) { return item->text == text; });
}

int ItemList::FindData(ItemData data) const {
  return IndexOf(items_, [data](const Item* item) { return item->data == data; });
}

void ItemList::OnChoose(int index) {
  if (!WithinReach() || index == current_ || !InRange(index, items_.size())) return;
  Select(index);
  ChangedByPerson();
}

std::string ComboBox::Text() const { return editable_ ? text_ : ItemText(Current()); }

void ComboBox::SetText(std::string_view text) {
  if (!editable_) return;
  text_ = text;
  ItemList::Select(FindBytes(text_));
  Notify(Change::kText);
}

void ComboBox::SetLimit(std::size_t bytes) {
  limit_ = bytes;
  Notify(Change::kStyle);
}

void ComboBox::Select(int index) {
  text_ = ItemText(index);
  ItemList::Select(index);
  if (editable_) Notify(Change::kText);
}

void ComboBox::OnTextEdited(std::string_view text) {
  if (!editable_ || !WithinReach()) return;
  text = text.substr(0, Utf8Prefix(text, limit_));
  const bool changed = text != text_;
  // Also when nothing changed: a widget may show more than the limit allows.
  SetText(text);
  if (changed) ChangedByPerson();
}

void ListBox::SetTabStops(std::vector<int> average_characters) {
  tab_stops_ = true;
  tab_positions_ = std::move(average_characters);
  Notify(Change::kItems);
}

void ListBox::OnDoubleClick(int index) {
  if (!WithinReach() || !InRange(index, static_cast<std::size_t>(Count()))) return;
  OnChoose(index);
  Run(on_double_click_);
}

void ListBox::OnTyped(std::string_view letter) {
  OnChoose(NextMeantBy(letter, Current(), Count(),
                       [this](int item) -> const std::string& { return ItemText(item); }));
}

void ListView::AddColumn(std::string title, int margin) {
  columns_.push_back({std::move(title), margin});
  Notify(Change::kItems);
}

int ListView::AddRow(std::vector<std::string> cells, ItemData data) {
  rows_.push_back({std::move(cells), data});
  Notify(Change::kItems);
  return RowCount() - 1;
}

void ListView::RemoveAllRows() {
  rows_.clear();
  selected_ = focused_ = under_cursor_ = -1;
  first_visible_ = 0;
  Notify(Change::kItems);
}

const std::string& ListView::Cell(int row, int column) const {
  if (!InRange(row, rows_.size())) return kEmpty;
  const auto& cells = rows_[static_cast<std::size_t>(row)].cells;
  return InRange(column, cells.size()) ? cells[static_cast<std::size_t>(column)] : kEmpty;
}

ItemData ListView::RowData(int row) const {
  return InRange(row, rows_.size()) ? rows_[static_cast<std::size_t>(row)].data : 0;
}

void ListView::SelectRow(int row) {
  selected_ = InRange(row, rows_.size()) ? row : -1;
  Notify(Change::kCurrent);
}

void ListView::FocusRow(int row) {
  focused_ = InRange(row, rows_.size()) ? row : -1;
  Notify(Change::kCurrent);
}

void ListView::SelectByPerson(int row) {
  const int before = selected_;
  if (row >= 0) focused_ = row;
  SelectRow(row);
  if (selected_ != before) ChangedByPerson();
}

void ListView::OnClickAt(int row) {
  if (!WithinReach()) return;
  under_cursor_ = InRange(row, rows_.size()) ? row : -1;
  SelectByPerson(under_cursor_);
  Run(on_click_);
}

void ListView::OnDoubleClickAt(int row) {
  if (!WithinReach()) return;
  under_cursor_ = InRange(row, rows_.size()) ? row : -1;
  SelectByPerson(under_cursor_);
  Run(on_double_click_);
}

void ListView::OnKeyDown(Key key) {
  if (!WithinReach()) return;
  MoveTo(RowAfter(key));
  if (on_key_) Run([&] { on_key_(key); });
}

// The row that a key leads to; the focused row for keys that lead nowhere.
int ListView::RowAfter(Key key) const {
  switch (key) {
    case Key::kUp:
      return focused_ - 1;
    case Key::kDown:
      return focused_ + 1;
    case Key::kPageUp:
      return focused_ - rows_per_page_;
    case Key::kPageDown:
      return focused_ + rows_per_page_;
    case Key::kHome:
      return 0;
    case Key::kEnd:
      return RowCount() - 1;
    default:
      return focused_;
  }
}

void ListView::MoveTo(int row) {
  if (rows_.empty() || row == focused_) return;
  row = std::clamp(row, 0, RowCount() - 1);
  first_visible_ = std::clamp(first_visible_, row - rows_per_page_ + 1, row);
  SelectByPerson(row);
}

void ListView::OnTyped(std::string_view letter) {
  if (!WithinReach()) return;
  const int row =
      NextMeantBy(letter, focused_, RowCount(), [this](int at) -> const std::string& { return Cell(at, 0); });
  if (row >= 0) SelectByPerson(row);
}

void ListView::OnScrolled(int first_visible, int rows_per_page) {
  first_visible_ = std::max(first_visible, 0);
  rows_per_page_ = std::max(rows_per_page, 1);
}

}  // namespace platform::ui
