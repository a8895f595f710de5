// SPDX-License-Identifier: MIT
// What the person sees; scripted_person.cc has what they do.
#include "desktops/scripted/control_search.h"
#include "desktops/scripted/screen.h"
#include "desktops/scripted/scripted_person.h"
#include "platform/ui/file_dialog.h"

namespace desktops {

using platform::ui::CheckBox;
using platform::ui::Control;
using platform::ui::Edit;
using platform::ui::FileDialog;
using platform::ui::ItemList;
using platform::ui::ListView;
using platform::ui::RadioGroup;

std::string ScriptedPerson::Caption() {
  if (sheet_ != nullptr) return sheet_->Label();
  const auto* dialog = dynamic_cast<const FileDialog*>(form_);
  return dialog != nullptr ? dialog->title : form_->Label();
}

std::string ScriptedPerson::Text(const std::string& label) {
  const Control& control = Find(label);
  const bool has_value =
      dynamic_cast<const Edit*>(&control) != nullptr || dynamic_cast<const ItemList*>(&control) != nullptr;
  return has_value ? ShownValue(control) : control.Label();
}

std::pair<std::size_t, std::size_t> ScriptedPerson::Selection(const std::string& label) {
  return Find<Edit>(label).Selection();
}

bool ScriptedPerson::IsVisible(const std::string& label) {
  const Control* control = Look(label);
  if (control != nullptr) return control->Visible();
  if (Front() != nullptr && HasText(Front()->Layout(), label)) return true;
  const auto button = FindSheetButton(label);
  if (sheet_ == nullptr || !button) Fail("No control \"" + label + "\"");
  return sheet_->ButtonVisible(*button);
}

bool ScriptedPerson::IsEnabled(const std::string& label) {
  const auto button = FindSheetButton(label);
  if (sheet_ != nullptr && button && Look(label) == nullptr) return sheet_->ButtonEnabled(*button);
  return Find(label).Enabled();
}

bool ScriptedPerson::IsChecked(const std::string& label) { return Find<CheckBox>(label).Checked(); }

std::string ScriptedPerson::ChosenOption(const std::string& group) {
  return ShownValue(Find<RadioGroup>(group));
}

std::vector<std::string> ScriptedPerson::Items(const std::string& label) {
  return ItemsOf(Find<ItemList>(label));
}

std::vector<std::vector<std::string>> ScriptedPerson::Rows(const std::string& label) {
  return RowsOf(Find<ListView>(label));
}

int ScriptedPerson::SelectedRow(const std::string& label) { return Find<ListView>(label).SelectedRow(); }

std::vector<std::string> ScriptedPerson::Tabs() {
  return sheet_ != nullptr ? TabsOf(*sheet_) : std::vector<std::string>();
}

std::string ScriptedPerson::FocusedLabel() {
  const Control* control = Front() != nullptr ? Front()->FocusedControl() : nullptr;
  return control != nullptr ? control->Label() : "";
}

std::string ScriptedPerson::Screen() {
  return sheet_ != nullptr ? DescribeSheet(*sheet_) : Caption() + "\n" + DescribeControls(*form_);
}

}  // namespace desktops
