// SPDX-License-Identifier: MIT
#include "console/hosts/field_way.h"

#include <algorithm>

#include "platform/ui/lists.h"
#include "platform/ui/meet_modal.h"

namespace hosts {
namespace {

/// The page, in front now; null where another one keeps it from that, or the sheet has none.
ui::Form* TurnTo(ui::PropertySheet& sheet, const std::string& page) {
  const auto& pages = sheet.Pages();
  const auto found = std::ranges::find_if(
      pages, [&](const ui::PropertyPage* each) { return page.empty() || each->Label() == page; });
  if (found == pages.end()) return nullptr;
  const auto index = static_cast<int>(found - pages.begin());
  return index == sheet.ActiveIndex() || sheet.SetActivePage(index) ? *found : nullptr;
}

ui::Form* FormOf(ui::Modal& window, const std::string& page) {
  auto* sheet = dynamic_cast<ui::PropertySheet*>(&window);
  return sheet != nullptr ? TurnTo(*sheet, page) : dynamic_cast<ui::Form*>(&window);
}

/// A control that is shown; null where there is none of that label.
ui::Control* FindShown(const ui::Form& form, const char* label) {
  for (ui::Control* control : form.Controls())
    if (label != nullptr && control->Visible() && control->Label() == label) return control;
  return nullptr;
}

ui::Control* FindShown(const ui::Form& form, const FieldStop& stop) {
  for (const char* label : stop.labels)
    if (ui::Control* control = FindShown(form, label)) return control;
  return nullptr;
}

bool RowHas(const ui::ListView& list, int row, const std::string& text) {
  for (int column = 0; column < static_cast<int>(list.Columns().size()); ++column)
    if (list.Cell(row, column) == text) return true;
  return false;
}

/// The row of the record, the one in front before others of the same name; -1 where there is none.
int RowOf(const ui::ListView& list, const std::string& record) {
  if (RowHas(list, list.FocusedRow(), record)) return list.FocusedRow();
  for (int row = 0; row < list.RowCount(); ++row)
    if (RowHas(list, row, record)) return row;
  return -1;
}

/// Has the button act on the record.
bool ChooseRow(ui::ListView& list, bool is_choice, const std::string& record) {
  const int row = RowOf(list, record);
  list.SetFocus();
  if (row < 0) return false;
  is_choice ? list.FocusRow(row) : list.OnClickAt(row);
  return true;
}

void PressOn(std::span<const FieldStop> way, const std::string& record, ui::Form& form) {
  const FieldStop& stop = way.front();
  auto* button = dynamic_cast<ui::Button*>(FindShown(form, stop));
  auto* list = dynamic_cast<ui::ListView*>(FindShown(form, stop.list));
  if (button == nullptr) return;
  const bool has_row = list != nullptr && !record.empty() && (button->Enabled() || !stop.is_choice);
  if (has_row && !ChooseRow(*list, stop.is_choice, record))
    return Tell("\"" + record + "\" is not there any more.");
  if (!button->Enabled()) return Tell("\"" + ui::PlainLabel(button->Label()) + "\" cannot be pressed here.");
  button->SetFocus();
  ui::MeetNextModal([&] { button->OnClick(); },
                    [way, record](ui::Modal& next) { GoToField(way.subspan(1), record, next); });
}

}  // namespace

void GoToField(std::span<const FieldStop> way, const std::string& record, ui::Modal& window) {
  ui::Form* form = FormOf(window, way.front().page);
  if (form == nullptr) return;
  if (way.size() > 1) return PressOn(way, record, *form);
  if (ui::Control* field = FindShown(*form, way.front())) field->SetFocus();
}

}  // namespace hosts
