// SPDX-License-Identifier: MIT
#include "alerting/services/user_base.h"

#include "alerting/frame/strings.h"
#include "alerting/services/default_message.h"

namespace alerting {
namespace {

constexpr int kPriorityWithoutMatch = 2;

}  // namespace

bool CNtfyServiceMailBase::FillPriorityList(ui::ComboBox& combo, std::uint32_t current) {
  if (priority_names_.empty())
    priority_names_ = {Text(kIdsPriorityUrgent), Text(kIdsPriorityNormal), Text(kIdsPriorityLow)};
  for (std::size_t i = 0; i < priority_names_.size(); ++i) {
    const int item = combo.Add(priority_names_[i]);
    combo.SetData(item, i);
    if (i == current) combo.Select(item);
  }
  if (combo.Current() < 0) combo.Select(kPriorityWithoutMatch);
  return true;
}

bool CNtfyServiceMailBase::InitWithDefaultMessage(ALERTRESPREC& response) const {
  DefaultMessage message;
  if (!GetDefaultMessage(message)) return false;
  InitResponseMessage(message, response);
  InitResponseSubject(message, response);
  response.priority = static_cast<std::uint16_t>(message.priority);
  return true;
}

}  // namespace alerting
