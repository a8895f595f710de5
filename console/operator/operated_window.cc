// SPDX-License-Identifier: MIT
#include "console/operator/operated_window.h"

#include <algorithm>

#include "console/site/failure.h"
#include "console/site/names.h"
#include "desktops/scripted/control_search.h"
#include "desktops/scripted/screen.h"
#include "platform/base/utf8.h"
#include "platform/ui/edit.h"
#include "platform/ui/lists.h"
#include "platform/ui/property_sheet.h"

namespace console_operator {
namespace {

namespace ui = platform::ui;
using site::Failure;

constexpr std::size_t kItemsToName = 20;

/// As people write a choice: without access key and colon.
std::string Written(const std::string& label) {
  std::string text = ui::PlainLabel(label);
  while (!text.empty() && text.back() == ':') text.pop_back();
  return text;
}

std::string Listed(const std::vector<std::string>& items) {
  std::string list;
  for (std::size_t i = 0; i < std::min(items.size(), kItemsToName); ++i)
    list += (i == 0 ? "" : ", ") + Written(items[i]);
  return list + (items.size() > kItemsToName ? ", ..." : "");
}

/// The place of what was written among the items. Of names that differ in case alone the exact one is meant.
std::size_t PlaceOf(const std::vector<std::string>& items, const std::string& label,
                    const std::string& written) {
  const auto exact = std::ranges::find(items, written);
  if (exact != items.end()) return static_cast<std::size_t>(exact - items.begin());
  const auto is_meant = [&](const std::string& item) {
    return platform::EqualIgnoringCase(Written(item), Written(written));
  };
  if (std::ranges::count_if(items, is_meant) > 1)
    throw Failure(site::kInvalid, "\"" + Written(label) + "\" has more than one \"" + written +
                                      "\": write it with the letters' case");
  const auto found = std::ranges::find_if(items, is_meant);
  if (found != items.end()) return static_cast<std::size_t>(found - items.begin());
  const std::string offers = items.empty() ? "there is none to choose" : "choose one of: " + Listed(items);
  throw Failure(site::kInvalid, "\"" + Written(label) + "\" has no \"" + written + "\": " + offers);
}

/// Of an option such as "Tone dialing" the first word says it all: the option that is meant, else `text`.
std::string FirstWordMeant(const std::vector<std::string>& options, const std::string& text) {
  const auto meant = std::ranges::find_if(options, [&](const std::string& option) {
    return platform::StartsWithIgnoringCase(Written(option), text + " ");
  });
  return meant != options.end() ? *meant : text;
}

/// Lists of windows end somewhere: what stands behind that cannot be reached.
void RequireShown(const std::string& label, std::size_t place, int count) {
  if (place >= static_cast<std::size_t>(count))
    throw Failure(site::kInvalid, "the window shows the first " + std::to_string(count) + " of \"" +
                                      Written(label) + "\" alone: remove some that are no longer needed");
}

/// Line breaks as fields have them.
std::string WithFieldBreaks(const std::string& text) {
  std::string result;
  for (const char c : text) {
    if (c == '\n' && !result.ends_with('\r')) result += '\r';
    result += c;
  }
  return result;
}

void CheckText(const FieldOption& option, const std::string& text) {
  std::string looked_at = text;
  if (option.kind == FieldKind::kLines)
    for (std::size_t at; (at = looked_at.find('\n')) != std::string::npos;) {
      const std::size_t begin = at > 0 && looked_at[at - 1] == '\r' ? at - 1 : at;
      looked_at.erase(begin, at + 1 - begin);
    }
  if (site::HasUnprintable(looked_at))
    throw Failure(site::kInvalid,
                  std::string(option.option) + " takes no control characters, and UTF-8 only");
}

/// The field did not take all that was typed.
[[noreturn]] void RefuseText(const FieldOption& option, const ui::Edit* edit, const std::string& text) {
  const std::string quoted = option.kind == FieldKind::kSecret ? "what was given" : "\"" + text + "\"";
  std::string why = quoted + " has characters that cannot be entered there";
  if (edit != nullptr && text.size() > edit->Limit())
    why = quoted + " has " + std::to_string(text.size()) + ", and the field takes " +
          std::to_string(edit->Limit()) + " bytes at most";
  throw Failure(site::kInvalid, std::string(option.option) + ": " + why);
}

bool IsYes(const FieldOption& option, const std::string& value) {
  if (value == "yes" || value == "no") return value == "yes";
  throw Failure(site::kInvalid, std::string(option.option) + " is yes or no, not \"" + value + "\"");
}

}  // namespace

ui::Form& OperatedWindow::Front() {
  auto* sheet = dynamic_cast<ui::PropertySheet*>(&modal_);
  ui::Form* form = sheet != nullptr ? sheet->ActivePage() : dynamic_cast<ui::Form*>(&modal_);
  if (modal_.Ended() || form == nullptr) desktop_.Refuse("the window is closed already");
  return *form;
}

ui::Control& OperatedWindow::Control(const std::string& label) {
  ui::Control* control = desktops::FindControl(Front(), label);
  if (control == nullptr) throw Failure(site::kInvalid, "there is no \"" + Written(label) + "\" here");
  return *control;
}

ui::Control& OperatedWindow::Reachable(const std::string& label) {
  ui::Control& control = Control(label);
  if (!control.Visible() || !control.Enabled())
    desktop_.Refuse("\"" + Written(label) + "\" cannot be changed with the other settings as they are");
  return control;
}

bool OperatedWindow::Shows(const std::string& label) {
  const ui::Control* control = desktops::FindControl(Front(), label);
  return control != nullptr && control->Visible();
}

bool OperatedWindow::IsSheet() const { return dynamic_cast<const ui::PropertySheet*>(&modal_) != nullptr; }

bool OperatedWindow::HasTab(const std::string& caption) const {
  const auto* sheet = dynamic_cast<const ui::PropertySheet*>(&modal_);
  return sheet != nullptr && std::ranges::count(desktops::TabsOf(*sheet), caption) > 0;
}

void OperatedWindow::SelectTab(const std::string& caption) {
  auto* sheet = dynamic_cast<ui::PropertySheet*>(&modal_);
  if (sheet != nullptr && sheet->ActivePage() != nullptr && sheet->ActivePage()->Label() == caption) return;
  person_.SelectTab(caption);
}

void OperatedWindow::Press(const std::string& button, const std::string& missing) {
  const ui::Control* control = desktops::FindControl(Front(), button);
  if (control != nullptr && !control->Enabled()) desktop_.Refuse(missing);
  if (IsSheet() && desktops::FindSheetButton(button) && !person_.IsEnabled(button)) desktop_.Refuse(missing);
  person_.Press(button);
}

void OperatedWindow::Finish(const std::string& button, const std::string& missing) {
  Press(button, missing);
  if (!modal_.Ended()) desktop_.Refuse(missing);
}

void OperatedWindow::Open(const std::string& button, std::vector<WindowOperator::Story> stories) {
  desktop_.Work([&] { Press(button); }, std::move(stories));
}

void OperatedWindow::OpenBeside(const std::string& label, const std::string& button,
                                std::vector<WindowOperator::Story> stories) {
  desktop_.Work([&] { person_.PressBeside(label, button); }, std::move(stories));
}

void OperatedWindow::Close() { person_.CloseWindow(); }

void OperatedWindow::Choose(const std::string& label, const std::string& item) {
  Reachable(label);
  ChooseAt(label, PlaceOf(person_.Items(label), label, item));
}

void OperatedWindow::ChooseAt(const std::string& label, std::size_t place) {
  // Texts may be equal: the place says which is meant.
  auto& list = Find<ui::ItemList>(label);
  RequireShown(label, place, list.Count());
  person_.Focus(label);
  desktop_.script.Guard([&] { list.OnChoose(static_cast<int>(place)); });
  desktop_.RunPosted();
}

void OperatedWindow::ClickRow(const std::string& label, std::size_t row) {
  RequireShown(label, row, Find<ui::ListView>(label).RowCount());
  person_.ClickRow(label, static_cast<int>(row));
}

void OperatedWindow::ChooseOption(const std::string& label, const std::string& text) {
  const auto* group = dynamic_cast<ui::RadioGroup*>(&Reachable(label));
  if (group == nullptr) return Choose(label, text);
  const std::vector<std::string>& options = group->Options();
  person_.ChooseOption(label, options[PlaceOf(options, label, FirstWordMeant(options, text))]);
}

void OperatedWindow::Type(const FieldOption& option, const std::string& label, const std::string& text) {
  ui::Control& control = Reachable(label);
  const auto* edit = dynamic_cast<const ui::Edit*>(&control);
  const std::string wanted = WithFieldBreaks(text);
  const bool takes_lines = edit != nullptr && edit->MultiLine();
  if (!takes_lines && wanted.find('\n') != std::string::npos) RefuseText(option, edit, text);
  std::string typed = wanted;
  std::erase(typed, '\r');
  person_.Type(label, typed);
  const std::string taken = edit != nullptr ? edit->Text() : desktops::ShownValue(control);
  if (taken != wanted) RefuseText(option, edit, wanted);
}

bool OperatedWindow::Fill(const FieldOption& option, const std::string& value) {
  const auto label = std::ranges::find_if(option.labels, [this](const auto& each) { return Shows(each); });
  if (label == option.labels.end()) return false;
  switch (option.kind) {
    case FieldKind::kFlag:
      Reachable(*label);
      person_.Check(*label, IsYes(option, value));
      return true;
    case FieldKind::kChoice:
      ChooseOption(*label, value);
      return true;
    case FieldKind::kSecret:
      CheckText(option, value);
      for (const std::string& each : option.labels) Type(option, each, value);
      return true;
    default:
      CheckText(option, value);
      Type(option, *label, value);
      return true;
  }
}

void OperatedWindow::FillAll(const FieldValues& values, const std::string& what) {
  for (const auto& [option, value] : values) {
    const bool has_page = *option->page == '\0' || !IsSheet() || HasTab(option->page);
    if (has_page && HasTab(option->page)) SelectTab(option->page);
    if (!has_page || !Fill(*option, value))
      throw Failure(site::kInvalid, what + " has nothing that " + option->option + " could set");
  }
}

}  // namespace console_operator
