// SPDX-License-Identifier: MIT
#pragma once

#include <utility>

#include "platform/ui/edit.h"

namespace alerting {

namespace ui = platform::ui;

/// The characters that a filtered field accepts besides the digits 0 to 9.
enum class CharacterSet {
  kNumericMessage,  ///< # *
  kPhoneNumber,     ///< ( ) , -
  kAreaCode,        ///< nothing else
  kDialing          ///< # * ( ) , - ! @
};

/// A field for telephone and pager input: typed, pasted and dropped text is held to its character set, and a
/// refused character beeps. Created for numeric messages with a selection memory: the selection at the loss
/// of the focus comes back with it.
class CFilteredEdit : public ui::Edit {
 public:
  using Edit::Edit;

  /// Chooses the character set and turns the selection memory off.
  void SetFilter(CharacterSet set);

  void OnChar(char32_t c) override;
  void OnPaste(std::string_view text) override;
  void OnSetFocus() override;
  void OnKillFocus() override;

 private:
  void PasteFromClipboard();

  CharacterSet set_ = CharacterSet::kNumericMessage;
  bool remembers_selection_ = true;
  std::pair<std::size_t, std::size_t> remembered_{};
};

}  // namespace alerting
