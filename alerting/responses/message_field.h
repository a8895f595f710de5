// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "alerting/responses/keywords.h"
#include "alerting/ui/keyword_edit.h"

namespace alerting {

/// A field for a message with keywords, the button that puts keywords into it, and the message as it is shown. A keyword
/// that the button puts in counts as a person's change of the field.
struct MessageField {
  /// The button's identifier is the one behind `id`. `trail` goes behind each keyword.
  MessageField(ui::Form& form, int id, std::string label, std::string button_label,
               std::string_view trail = " ");

  void Expand(const std::string& stored, const KeywordIds& ids) { text = ExpandKeywords(stored, ids); }
  std::string Collapse(KeywordIds& ids) const { return CollapseKeywords(text, ids); }

  std::string text;
  CKeywordEdit edit;
  ui::FieldButton fields;
};

}  // namespace alerting
