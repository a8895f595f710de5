// SPDX-License-Identifier: MIT
#include "alerting/ui/filtered_edit.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include "platform/ui/desktop.h"

namespace alerting {
namespace {

constexpr char32_t kFirstPrintable = 32;

std::string_view Marks(CharacterSet set) {
  switch (set) {
    case CharacterSet::kNumericMessage:
      return "#*";
    case CharacterSet::kPhoneNumber:
      return "(),-";
    case CharacterSet::kAreaCode:
      return "";
    case CharacterSet::kDialing:
      return "#*(),-!@";
  }
  return "";
}

bool Accepts(CharacterSet set, char32_t c) {
  if (c >= U'0' && c <= U'9') return true;
  return c < 128 && Marks(set).find(static_cast<char>(c)) != std::string_view::npos;
}

}  // namespace

void CFilteredEdit::SetFilter(CharacterSet set) {
  set_ = set;
  remembers_selection_ = false;
}

void CFilteredEdit::OnChar(char32_t c) {
  if (c == ui::kCharPaste) {
    PasteFromClipboard();
  } else if (c < kFirstPrintable || Accepts(set_, c)) {
    Edit::OnChar(c);
  } else {
    ui::Desktop::Current().Beep();
  }
}

void CFilteredEdit::PasteFromClipboard() {
  const std::optional<std::string> text = ui::Desktop::Current().ClipboardText();
  if (text)
    OnPaste(*text);
  else
    ui::Desktop::Current().Beep();
}

void CFilteredEdit::OnPaste(std::string_view text) {
  std::string accepted;
  std::ranges::copy_if(text, std::back_inserter(accepted), [this](char c) {
    return c == static_cast<char>(ui::kCharBackspace) || Accepts(set_, static_cast<unsigned char>(c));
  });
  Edit::OnPaste(accepted);
}

void CFilteredEdit::OnSetFocus() {
  Edit::OnSetFocus();
  if (remembers_selection_) SetSelection(remembered_.first, remembered_.second);
}

void CFilteredEdit::OnKillFocus() {
  remembered_ = Selection();
  Edit::OnKillFocus();
}

}  // namespace alerting
