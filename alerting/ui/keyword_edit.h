// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ui/edit.h"

namespace alerting {

namespace ui = platform::ui;

/// A field for message texts in which each keyword ("<User Name>") is one token: the caret does not stop
/// inside it, it is selected and deleted as a whole, and nothing is typed or pasted into it. The first
/// Backspace behind a keyword, or the first Delete before it, selects it; the second removes it. A refusal
/// beeps. The selection at the loss of the focus comes back with it.
class CKeywordEdit : public ui::Edit {
 public:
  using Edit::Edit;

  /// True when the caret or an end of the selection lies inside a keyword. `adjust` then widens the selection
  /// to the whole keyword. `backspace` asks on behalf of that key, which reaches one character to the left
  /// and may delete a selection from "<" to ">".
  bool ProtectKeywords(bool adjust, bool backspace);

  void OnChar(char32_t c) override;
  void OnPaste(std::string_view text) override;
  void OnKeyDown(ui::Key key) override;
  void OnKeyUp(ui::Key key) override;
  void OnMouseUp() override;
  void OnSetFocus() override;
  void OnKillFocus() override;

 private:
  bool Protect(bool adjust, bool backspace, bool reversed);
  bool RefusesDelete();

  // What the field gets back with the focus; reversed: the caret belongs at the start.
  std::size_t remembered_start_ = 0, remembered_end_ = 0;
  bool reversed_ = false;
};

}  // namespace alerting
