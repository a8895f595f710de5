// SPDX-License-Identifier: MIT
#include "alerting/testing/test_dialog.h"

#include "alerting/frame/companions.h"
#include "alerting/responses/keywords.h"

namespace alerting {
namespace {

constexpr std::uint32_t kComputerBufferSize = 64;

}  // namespace

void CTestDialog::Arrange(std::vector<ui::LayoutNode> fields) {
  fields.push_back(ui::Bare(progress_.emplace(*this, 0, "")));
  fields.push_back(buttons_.emplace(*this).Row());
  ui::LayoutNode whole = ui::Column({});
  whole.children = std::move(fields);
  SetLayout(std::move(whole));
}

DefaultMessage CTestDialog::ShownDefaultMessage() {
  DefaultMessage message;
  service_.GetDefaultMessage(message);
  message.body = ExpandKeywords(message.body, message.bodyKeywords);
  message.subject = ExpandKeywords(message.subject, message.subjectKeywords);
  return message;
}

void CTestDialog::OnOk() {
  if (UpdateData(true) && Send()) EndDialog(ui::kOk);
}

TargetField::TargetField(ui::Form& form, int first_id, std::string label, Choose choose,
                         std::function<void()> on_chosen)
    : name(form, first_id, std::move(label)), browse(form, first_id + 1, name) {
  name.SetReadOnly(true);
  browse.SetOnClick([this, choose = std::move(choose), on_chosen = std::move(on_chosen)] {
    std::string chosen = name.Text();
    if (choose(chosen, id)) name.SetText(chosen);
    on_chosen();
  });
}

TargetField::Choose TargetField::UserOf(CNtfyService& service, ui::Form& form) {
  return [&](std::string& name, GUID& id) { return service.SelectUser(&form, name, id); };
}

TargetField::Choose TargetField::Computer(ui::Form& form) {
  return [&](std::string& name, GUID& id) {
    GUID result{};
    char buffer[kComputerBufferSize] = {};
    const GUID chosen =
        *TheCompanions().minibrowse->dlgMiniBrowser(&result, objmodel::kComputerClass, 0, &form);
    if (chosen.IsNull()) return false;
    id = chosen;
    TheCompanions().objmodel->QevOMGetInstanceProperty(id, objmodel::kComputerClass, objmodel::kNameProperty,
                                                       buffer, sizeof(buffer));
    name = buffer;
    return true;
  };
}

}  // namespace alerting
