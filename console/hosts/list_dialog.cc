// SPDX-License-Identifier: MIT
#include "console/hosts/list_dialog.h"

namespace hosts {
namespace {

enum ControlId { kIdEmpty = 99, kIdList, kIdFirstButton };

}  // namespace

ListDialog::ListDialog(ui::Window* parent, const Look& look)
    : HostDialog(parent, look.caption, look.help_page),
      empty_(*this, kIdEmpty, look.empty_text),
      list_(*this, kIdList, look.list_label) {
  for (const auto& [title, margin] : look.columns) list_.AddColumn(title, margin);
  list_.SetOnChange([this] { EnableButtons(); });
}

ui::Button& ListDialog::AddButton(std::string label, std::function<void()> press) {
  const int id = kIdFirstButton + static_cast<int>(buttons_.size());
  ui::Button& button = *buttons_.emplace_back(std::make_unique<ui::Button>(*this, id, std::move(label)));
  button.SetOnClick(std::move(press));
  return button;
}

ui::Button& ListDialog::AddRowButton(std::string label, std::function<void()> press) {
  return *row_buttons_.emplace_back(&AddButton(std::move(label), std::move(press)));
}

void ListDialog::Finish() {
  auto& close = *buttons_.emplace_back(std::make_unique<ui::Button>(*this, ui::kIdCancel, "Close"));
  close.SetOnClick([this] { OnCancel(); });
  close.SetDefault(true);
  ui::LayoutNode column = ui::ButtonColumn({});
  for (const auto& button : buttons_) column.children.push_back(ui::Bare(*button));
  SetLayout(ui::Column({ui::Bare(empty_), ui::Row({ui::Over(list_), std::move(column)})}));
}

void ListDialog::OnInitDialog() {
  Refill();
  list_.ChooseSomething();
  EnableButtons();
  HostDialog::OnInitDialog();
}

void ListDialog::EnableButtons() {
  for (ui::Button* button : row_buttons_) button->Enable(list_.Chosen() != nullptr);
}

bool ListDialog::Refill() {
  std::vector<RecordList::Row> rows;
  const bool read = ReadRows(rows);
  if (read) list_.Fill(std::move(rows));
  empty_.Show(list_.Empty());
  EnableButtons();
  return read;
}

void ListDialog::NoteChange() {
  changed_ = true;
  Refill();
}

}  // namespace hosts
