// SPDX-License-Identifier: MIT
#include "alerting/telephony/dialing_rules_dlg.h"

#include <cstring>

namespace alerting {
namespace {

constexpr int kIdSameArea = 100, kIdLongDistance = 101, kIdInternational = 102;

}  // namespace

CDialingRulesDlg::CDialingRulesDlg(ui::Window* parent, char* same_area, char* long_distance,
                                   char* international)
    : CLibraryDialog(parent, "Dialing Rules", ctxhelp::kHelpDialingRules),
      same_area_{same_area, {*this, kIdSameArea, "&Calls within the same area code:"}},
      long_distance_{long_distance, {*this, kIdLongDistance, "&Long distance calls:"}},
      international_{international, {*this, kIdInternational, "&International calls:"}},
      buttons_(*this) {
  SetLayout(ui::Column({ui::Field(same_area_.field), ui::Field(long_distance_.field),
                        ui::Field(international_.field), buttons_.Row()}));
}

void CDialingRulesDlg::OnInitDialog() {
  for (Rule* rule : {&same_area_, &long_distance_, &international_}) {
    rule->field.SetFilter(CharacterSet::kDialing);
    if (rule->buffer != nullptr) rule->field.SetText(rule->buffer);
  }
}

void CDialingRulesDlg::OnOk() {
  for (const Rule* rule : {&same_area_, &long_distance_, &international_})
    if (rule->buffer != nullptr) std::strcpy(rule->buffer, rule->field.Text().c_str());
  EndDialog(ui::kOk);
}

}  // namespace alerting
