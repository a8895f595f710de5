// SPDX-License-Identifier: MIT
#include "desktops/scripted/scripted_person.h"

#include <algorithm>
#include <cctype>

#include "desktops/scripted/control_search.h"
#include "desktops/scripted/keyboard.h"
#include "desktops/scripted/screen.h"
#include "platform/base/utf8.h"

namespace desktops {

using platform::ui::Button;
using platform::ui::Canvas;
using platform::ui::CheckBox;
using platform::ui::ComboBox;
using platform::ui::Control;
using platform::ui::Edit;
using platform::ui::Form;
using platform::ui::ItemList;
using platform::ui::Key;
using platform::ui::ListBox;
using platform::ui::ListView;
using platform::ui::Modal;
using platform::ui::PropertySheet;
using platform::ui::RadioGroup;
using platform::ui::SheetButton;
using platform::ui::Spin;

namespace {

bool TakesText(const Control& control) {
  const auto* combo = dynamic_cast<const ComboBox*>(&control);
  return dynamic_cast<const Edit*>(&control) != nullptr || (combo != nullptr && combo->Editable());
}

}  // namespace

ScriptedPerson::ScriptedPerson(ScriptedDesktop& desktop, Modal& modal)
    : desktop_(desktop),
      modal_(&modal),
      sheet_(dynamic_cast<PropertySheet*>(&modal)),
      form_(dynamic_cast<Form*>(&modal)) {}

ScriptedPerson::ScriptedPerson(ScriptedDesktop& desktop, Form& form) : desktop_(desktop), form_(&form) {}

void ScriptedPerson::Fail(const std::string& what) {
  throw PersonError(what + "; on the screen:\n" + Screen());
}

Form* ScriptedPerson::Front() {
  if (modal_ != nullptr && modal_->Ended()) Fail("The window has ended");
  return sheet_ != nullptr ? sheet_->ActivePage() : form_;
}

Form& ScriptedPerson::Shown() {
  Form* form = Front();
  if (form == nullptr) Fail("The sheet shows no page");
  return *form;
}

Control* ScriptedPerson::Look(const std::string& label) {
  const Form* form = Front();
  return form != nullptr ? FindControl(*form, label) : nullptr;
}

Control& ScriptedPerson::Find(const std::string& label) {
  Control* control = Look(label);
  if (control == nullptr) Fail("No control \"" + label + "\"");
  return *control;
}

void ScriptedPerson::RequireReach(const Control& control) {
  if (!control.Visible()) Fail("\"" + control.Label() + "\" is hidden");
  if (!control.Enabled()) Fail("\"" + control.Label() + "\" is disabled");
}

void ScriptedPerson::Do(const std::function<void()>& action) {
  if (desktop_.asleep) return;
  desktop_.script.Guard(action);
  desktop_.RunPosted();
}

void ScriptedPerson::Click(Control& control, const std::function<void()>& action) {
  Do([&] {
    control.SetFocus();
    action();
  });
}

void ScriptedPerson::TypeCharacters(const std::string& text) {
  for (const char32_t c : CodePoints(text)) {
    Form& form = Shown();
    bool typed = false;
    Do([&] { typed = TypeCharacter(form, c); });
    if (!typed) Fail("The control with the focus takes no text");
  }
}

void ScriptedPerson::Type(const std::string& label, const std::string& text) {
  auto& control = Touch<Control>(label);
  if (!TakesText(control)) Fail("\"" + label + "\" takes no text");
  if (auto* edit = dynamic_cast<Edit*>(&control)) {
    Click(*edit, [&] { edit->OnSelectionMoved(0, edit->Text().size(), false); });
    if (text.empty()) Press(Key::kDelete);
  } else {
    // The first character takes the place of the whole text, which must not be reported as gone before.
    auto& combo = static_cast<ComboBox&>(control);
    const std::size_t first = platform::Utf8Next(text, 0);
    Click(combo, [&] { combo.OnTextEdited(text.substr(0, first)); });
    return TypeCharacters(text.substr(first));
  }
  TypeCharacters(text);
}

void ScriptedPerson::TypeHere(const std::string& text) { TypeCharacters(text); }

void ScriptedPerson::Press(Key key) {
  Form* form = Front();
  Do([&] { form != nullptr ? PressKey(*form, key) : PressSheetKey(key); });
}

// Without a page the keyboard is with the sheet itself.
void ScriptedPerson::PressSheetKey(Key key) {
  if (key == Key::kEnter) sheet_->OnButton(sheet_->DefaultButton());
  if (key == Key::kEscape) sheet_->OnCloseRequest();
}

void ScriptedPerson::ClickInText(const std::string& label, std::size_t position) {
  SelectText(label, position, position);
}

void ScriptedPerson::SelectText(const std::string& label, std::size_t start, std::size_t end) {
  Edit& edit = Touch<Edit>(label);
  Click(edit, [&] {
    edit.OnSelectionMoved(start, end, false);
    edit.OnMouseUp();
  });
}

void ScriptedPerson::Paste(const std::string& label, const std::string& text) {
  auto& control = Touch<Control>(label);
  if (!TakesText(control)) Fail("\"" + label + "\" takes no text");
  desktop_.SetClipboardText(text);
  Focus(label);
  Do([&] {
    if (auto* edit = dynamic_cast<Edit*>(&control)) {
      edit->OnChar(platform::ui::kCharPaste);
    } else {
      auto& combo = static_cast<ComboBox&>(control);
      combo.OnTextEdited(combo.Text() + text);
    }
  });
}

void ScriptedPerson::Focus(const std::string& label) {
  auto& control = Touch<Control>(label);
  if (!control.TakesFocus()) Fail("\"" + label + "\" does not take the focus");
  Do([&] { TabInto(Shown(), control); });
}

void ScriptedPerson::Press(const std::string& button) {
  const bool on_form = Look(button) != nullptr;
  const auto of_sheet = FindSheetButton(button);
  if (!on_form && sheet_ != nullptr && of_sheet) return PressSheetButton(*of_sheet, button);
  Button& pressed = Touch<Button>(button);
  Click(pressed, [&] { pressed.OnClick(); });
}

void ScriptedPerson::PressSheetButton(SheetButton button, const std::string& label) {
  if (!sheet_->ButtonVisible(button)) Fail("\"" + label + "\" is hidden");
  if (!sheet_->ButtonEnabled(button)) Fail("\"" + label + "\" is disabled");
  Do([&] { sheet_->OnButton(button); });
}

void ScriptedPerson::PressBeside(const std::string& label, const std::string& button) {
  Button* pressed = FindButtonBeside(Shown(), Find(label), button);
  if (pressed == nullptr) Fail("No button \"" + button + "\" beside \"" + label + "\"");
  RequireReach(*pressed);
  Click(*pressed, [&] { pressed->OnClick(); });
}

void ScriptedPerson::AccessKey(char key) {
  Form* form = Front();
  bool found = false;
  Do([&] { found = form != nullptr && PressAccessKey(*form, key); });
  if (!found && !PressSheetAccessKey(key)) Fail(std::string("Nothing has the access key ") + key);
}

bool ScriptedPerson::PressSheetAccessKey(char key) {
  if (sheet_ == nullptr) return false;
  key = static_cast<char>(std::tolower(static_cast<unsigned char>(key)));
  for (const NamedSheetButton& named : SheetButtons()) {
    if (platform::ui::AccessKey(named.label) != key || !sheet_->ButtonEnabled(named.button)) continue;
    PressSheetButton(named.button, named.label);
    return true;
  }
  return false;
}

void ScriptedPerson::Check(const std::string& label, bool checked) {
  CheckBox& box = Touch<CheckBox>(label);
  if (box.Checked() == checked) return;
  Click(box, [&] { box.OnClick(); });
  if (box.Checked() != checked) Fail("\"" + label + "\" does not stay as it was clicked");
}

void ScriptedPerson::ChooseOption(const std::string& group, const std::string& option) {
  RadioGroup& radio = Touch<RadioGroup>(group);
  const auto found = std::ranges::find(radio.Options(), option);
  if (found == radio.Options().end()) Fail("No option \"" + option + "\" in \"" + group + "\"");
  Click(radio, [&] { radio.OnChoose(static_cast<int>(found - radio.Options().begin())); });
}

int ScriptedPerson::ItemIndex(const ItemList& list, const std::string& item) {
  const int index = list.FindBytes(item);
  if (index >= 0) return index;
  std::string items;
  for (const std::string& text : ItemsOf(list)) items += "\n    " + text;
  Fail("No item \"" + item + "\" in \"" + list.Label() + "\", which has" + items);
}

void ScriptedPerson::Choose(const std::string& label, const std::string& item) {
  ItemList& list = Touch<ItemList>(label);
  const int index = ItemIndex(list, item);
  Click(list, [&] { list.OnChoose(index); });
}

void ScriptedPerson::DoubleClickItem(const std::string& label, const std::string& item) {
  ListBox& list = Touch<ListBox>(label);
  const int index = ItemIndex(list, item);
  Click(list, [&] { list.OnDoubleClick(index); });
}

void ScriptedPerson::RequireRow(const ListView& list, int row) {
  if (row < -1 || row >= list.RowCount())
    Fail("No row " + std::to_string(row) + " in \"" + list.Label() + "\"");
}

void ScriptedPerson::ClickRow(const std::string& label, int row) {
  ListView& list = Touch<ListView>(label);
  RequireRow(list, row);
  Click(list, [&] { list.OnClickAt(row); });
}

void ScriptedPerson::DoubleClickRow(const std::string& label, int row) {
  ClickRow(label, row);
  ListView& list = Touch<ListView>(label);
  Do([&] { list.OnDoubleClickAt(row); });
}

void ScriptedPerson::ClickAt(const std::string& label, int x, int y) { DragOver(label, x, y, x, y); }

void ScriptedPerson::DoubleClickAt(const std::string& label, int x, int y) {
  ClickAt(label, x, y);
  Canvas& canvas = Touch<Canvas>(label);
  Click(canvas, [&] { canvas.OnDoubleClick(x, y); });
}

void ScriptedPerson::DragOver(const std::string& label, int x, int y, int to_x, int to_y) {
  Canvas& canvas = Touch<Canvas>(label);
  Click(canvas, [&] {
    canvas.OnMouseDown(x, y);
    canvas.OnMouseUp(to_x, to_y);
  });
}

// A scroll bar takes no focus.
void ScriptedPerson::ScrollCanvas(const std::string& label, Canvas::Scroll what, int thumb) {
  Canvas& canvas = Touch<Canvas>(label);
  Do([&] { canvas.OnScroll(what, thumb); });
}

void ScriptedPerson::StepSpin(const std::string& buddy_label, int direction) {
  Spin* spin = FindSpin(Shown(), buddy_label);
  if (spin == nullptr) Fail("No spin beside \"" + buddy_label + "\"");
  RequireReach(*spin);
  Do([&] { spin->OnStep(direction); });
}

void ScriptedPerson::SelectTab(const std::string& caption) {
  Front();
  const std::vector<std::string> tabs = Tabs();
  const auto found = std::ranges::find(tabs, caption);
  if (found == tabs.end()) Fail("No tab \"" + caption + "\"");
  Do([&] { sheet_->SetActivePage(static_cast<int>(found - tabs.begin())); });
}

std::string ScriptedPerson::HelpOn(const std::string& label) {
  auto& control = Touch<Control>(label);
  desktop_.last_help_text.clear();
  if (control.TakesFocus()) {
    Focus(label);
    Press(Key::kF1);
  } else {
    Do([&] { Shown().OnHelp({platform::ui::HelpEvent::Kind::kContextMenu, &control}); });
  }
  return desktop_.last_help_text;
}

void ScriptedPerson::CloseWindow() {
  Front();
  if (modal_ == nullptr) Fail("Only the script closes a file dialog");
  Do([&] { modal_->OnCloseRequest(); });
}

}  // namespace desktops
