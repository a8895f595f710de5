// SPDX-License-Identifier: MIT
#include "alerting/responses/message_field.h"

#include "alerting/responses/choose_keyword_dlg.h"

namespace alerting {

MessageField::MessageField(ui::Form& form, int id, std::string label, std::string button_label,
                           std::string_view trail)
    : edit(form, id, std::move(label)), fields(form, id + 1, std::move(button_label), "Fields for", edit) {
  fields.SetOnClick([this, trail] {
    if (InsertChosenKeyword(edit, trail)) edit.OwnerForm().OnPersonChange(edit);
  });
}

}  // namespace alerting
