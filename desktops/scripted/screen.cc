// SPDX-License-Identifier: MIT
#include "desktops/scripted/screen.h"

#include "desktops/scripted/control_search.h"
#include "platform/base/utf8.h"
#include "platform/ui/edit.h"

namespace desktops {

using platform::ui::CheckBox;
using platform::ui::ComboBox;
using platform::ui::Control;
using platform::ui::Edit;
using platform::ui::Form;
using platform::ui::ItemList;
using platform::ui::ListView;
using platform::ui::PropertySheet;
using platform::ui::RadioGroup;

namespace {

std::string Masked(const std::string& text) {
  std::string stars;
  for (std::size_t pos = 0; pos < text.size(); pos = platform::Utf8Next(text, pos)) stars += '*';
  return stars;
}

std::string RowLine(const ListView& list, int row) {
  std::string line = list.SelectedRow() == row ? ">" : "";
  for (int column = 0; column < static_cast<int>(list.Columns().size()); ++column) {
    line += "|" + list.Cell(row, column);
  }
  return line;
}

std::string ListedRows(const ListView& list) {
  std::string lines;
  for (int row = 0; row < list.RowCount(); ++row) lines += "\n    " + RowLine(list, row);
  return lines;
}

}  // namespace

std::string ShownValue(const Control& control) {
  if (const auto* edit = dynamic_cast<const Edit*>(&control)) {
    return edit->Masked() ? Masked(edit->Text()) : edit->Text();
  }
  if (const auto* combo = dynamic_cast<const ComboBox*>(&control)) return combo->Text();
  if (const auto* list = dynamic_cast<const ItemList*>(&control)) return list->ItemText(list->Current());
  if (const auto* box = dynamic_cast<const CheckBox*>(&control)) return box->Checked() ? "checked" : "clear";
  if (const auto* group = dynamic_cast<const RadioGroup*>(&control)) {
    return group->Index() >= 0 ? group->Options()[static_cast<std::size_t>(group->Index())] : "";
  }
  if (const auto* view = dynamic_cast<const ListView*>(&control)) return ListedRows(*view);
  return {};
}

std::vector<std::string> ItemsOf(const ItemList& list) {
  std::vector<std::string> items;
  for (int i = 0; i < list.Count(); ++i) items.push_back(list.ItemText(i));
  return items;
}

std::vector<std::vector<std::string>> RowsOf(const ListView& list) {
  std::vector<std::vector<std::string>> rows;
  for (int row = 0; row < list.RowCount(); ++row) {
    auto& cells = rows.emplace_back();
    for (std::size_t column = 0; column < list.Columns().size(); ++column) {
      cells.push_back(list.Cell(row, static_cast<int>(column)));
    }
  }
  return rows;
}

std::vector<std::string> TabsOf(const PropertySheet& sheet) {
  std::vector<std::string> tabs;
  if (sheet.IsWizard()) return tabs;
  for (const auto* page : sheet.Pages()) tabs.push_back(page->Label());
  return tabs;
}

std::string DescribeControls(const Form& form) {
  std::string lines;
  for (const Control* control : form.Controls()) {
    if (!control->Visible()) continue;
    lines += "  \"" + control->Label() + "\"";
    if (!control->Enabled()) lines += " (disabled)";
    if (control->HasFocus()) lines += " (focus)";
    const std::string value = ShownValue(*control);
    lines += value.empty() ? "\n" : " = " + value + "\n";
  }
  return lines;
}

std::string DescribeSheet(const PropertySheet& sheet) {
  std::string text = sheet.Label() + "\n  tabs:";
  for (const auto* page : sheet.Pages()) {
    text += page == sheet.ActivePage() ? " [" + page->Label() + "]" : " " + page->Label();
  }
  text += "\n";
  if (sheet.ActivePage() != nullptr) text += DescribeControls(*sheet.ActivePage());
  text += "  buttons:";
  for (const NamedSheetButton& named : SheetButtons()) {
    if (!sheet.ButtonVisible(named.button)) continue;
    text += " [" + named.label + (sheet.ButtonEnabled(named.button) ? "]" : ", disabled]");
  }
  return text + "\n";
}

}  // namespace desktops
