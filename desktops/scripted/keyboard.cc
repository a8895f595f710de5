// SPDX-License-Identifier: MIT
#include "desktops/scripted/keyboard.h"

#include <algorithm>
#include <cctype>

#include "platform/base/utf8.h"
#include "platform/ui/edit.h"
#include "platform/ui/lists.h"

namespace desktops {

using platform::ui::Button;
using platform::ui::CheckBox;
using platform::ui::ComboBox;
using platform::ui::Control;
using platform::ui::Edit;
using platform::ui::Form;
using platform::ui::HelpEvent;
using platform::ui::ItemList;
using platform::ui::Key;
using platform::ui::RadioGroup;

namespace {

int StepOf(Key key) {
  if (key == Key::kUp || key == Key::kLeft) return -1;
  return key == Key::kDown || key == Key::kRight ? 1 : 0;
}

void KeyInList(ItemList& list, Key key) {
  const int last = list.Count() - 1;
  int index = list.Current();
  if (key == Key::kHome) index = 0;
  if (key == Key::kEnd) index = last;
  index = std::min(index + StepOf(key), last);
  if (index >= 0 && index != list.Current()) list.OnChoose(index);
}

void KeyInRadioGroup(RadioGroup& group, Key key) {
  const int count = static_cast<int>(group.Options().size());
  const int step = StepOf(key);
  if (step != 0) group.OnChoose((std::max(group.Index(), 0) + step + count) % count);
  if (key == Key::kSpace) group.OnChoose(std::max(group.Index(), 0));
}

// What the control's widget does by itself; edits and reports do it in their own OnKeyDown.
void ActOnKey(Control& control, Key key) {
  if (auto* list = dynamic_cast<ItemList*>(&control)) return KeyInList(*list, key);
  if (auto* group = dynamic_cast<RadioGroup*>(&control)) return KeyInRadioGroup(*group, key);
  if (key != Key::kSpace) return;
  if (auto* button = dynamic_cast<Button*>(&control)) button->OnClick();
  if (auto* box = dynamic_cast<CheckBox*>(&control)) box->OnClick();
  if (auto* edit = dynamic_cast<Edit*>(&control)) edit->OnChar(U' ');
}

bool IsMultiLine(const Control* control) {
  const auto* edit = dynamic_cast<const Edit*>(control);
  return edit != nullptr && edit->MultiLine();
}

// The keys that the window acts on. A multi-line field keeps Enter.
void ActOnFormKey(Form& form, Key key) {
  if (key == Key::kEnter && !IsMultiLine(form.FocusedControl())) form.OnEnter();
  if (key == Key::kEscape) form.OnEscape();
  if (key == Key::kF1) form.OnHelp({HelpEvent::Kind::kHelpKey, form.FocusedControl()});
}

void TabOn(Form& form) {
  if (Control* next = form.NextInTabOrder()) TabInto(form, *next);
}

void TypeIntoCombo(ComboBox& combo, char32_t c) {
  std::string text = combo.Text();
  if (c == U'\b') {
    text.resize(platform::Utf8Previous(text, text.size()));
  } else if (c >= U' ') {
    platform::Utf8Append(text, c);
  }
  combo.OnTextEdited(text);
}

// Alt and a key press what can be pressed and move the focus to anything else.
void ActOnAccessKey(Form& form, Control& control) {
  TabInto(form, control);
  if (auto* button = dynamic_cast<Button*>(&control)) button->OnClick();
  if (auto* box = dynamic_cast<CheckBox*>(&control)) box->OnClick();
}

bool PressOptionKey(Form& form, Control& control, char key) {
  auto* group = dynamic_cast<RadioGroup*>(&control);
  if (group == nullptr) return false;
  for (std::size_t i = 0; i < group->Options().size(); ++i) {
    if (platform::ui::AccessKey(group->Options()[i]) != key) continue;
    form.MoveFocus(group);
    group->OnChoose(static_cast<int>(i));
    return true;
  }
  return false;
}

}  // namespace

void TabInto(Form& form, Control& control) {
  if (control.HasFocus()) return;
  auto* edit = dynamic_cast<Edit*>(&control);
  if (edit != nullptr && !edit->MultiLine()) edit->OnSelectionMoved(0, edit->Text().size(), false);
  form.MoveFocus(&control);
}

void PressKey(Form& form, Key key) {
  if (key == Key::kTab) return TabOn(form);
  Control* control = form.FocusedControl();
  if (control == nullptr) return ActOnFormKey(form, key);
  if (key == Key::kEnter && IsMultiLine(control)) {
    static_cast<Edit*>(control)->OnChar(platform::ui::kCharEnter);
  } else {
    control->OnKeyDown(key);
    ActOnKey(*control, key);
    ActOnFormKey(form, key);
  }
  if (form.Created() && form.FocusedControl() == control) control->OnKeyUp(key);
}

bool TypeCharacter(Form& form, char32_t c) {
  Control* control = form.FocusedControl();
  if (c == U'\n') {
    PressKey(form, Key::kEnter);
  } else if (auto* edit = dynamic_cast<Edit*>(control)) {
    edit->OnChar(c);
  } else if (auto* combo = dynamic_cast<ComboBox*>(control); combo != nullptr && combo->Editable()) {
    TypeIntoCombo(*combo, c);
  } else if (c == U' ') {
    PressKey(form, Key::kSpace);
  } else {
    return false;
  }
  return true;
}

bool PressAccessKey(Form& form, char key) {
  const char wanted = static_cast<char>(std::tolower(static_cast<unsigned char>(key)));
  for (Control* control : form.Controls()) {
    if (!control->Visible() || !control->Enabled()) continue;
    if (PressOptionKey(form, *control, wanted)) return true;
    if (platform::ui::AccessKey(control->Label()) != wanted || !control->TakesFocus()) continue;
    ActOnAccessKey(form, *control);
    return true;
  }
  return false;
}

std::u32string CodePoints(const std::string& text) {
  constexpr char32_t kLeadBits[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
  std::u32string points;
  for (std::size_t pos = 0; pos < text.size();) {
    const std::size_t next = platform::Utf8Next(text, pos);
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    char32_t point = byte(pos) & kLeadBits[next - pos];
    for (std::size_t i = pos + 1; i < next; ++i) point = point << 6 | (byte(i) & 0x3F);
    points.push_back(point);
    pos = next;
  }
  return points;
}

}  // namespace desktops
