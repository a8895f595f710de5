// SPDX-License-Identifier: MIT
#include "alerting/services/ntfy_service_alpha.h"

#include <algorithm>
#include <limits>

#include "alerting/services/service_ui.h"
#include "platform/ui/modal.h"

namespace alerting {

CNtfyServiceAlpha::ProviderFields CNtfyServiceAlpha::GetProviderFields() const {
  const ALRTAPAGESERVICEREC& record = Primary();
  return {std::string(record.providerCompany.View()), std::string(record.providerLocation.View()),
          std::string(record.providerPhone.View()), record.maxTextLength};
}

void CNtfyServiceAlpha::SetProviderFields(const ProviderFields& fields) {
  Primary().providerCompany.Assign(fields.company);
  Primary().providerLocation.Assign(fields.location);
  Primary().providerPhone.Assign(fields.phone);
  Primary().maxTextLength = fields.textLength;
}

int CNtfyServiceAlpha::GetMaxMessageLength() const {
  constexpr std::uint32_t kMost = std::numeric_limits<int>::max();  // a foreign record may hold anything
  return static_cast<int>(std::min<std::uint32_t>(Primary().maxTextLength, kMost));
}

int CNtfyServiceAlpha::GetIncompleteConfigMessageId() const { return kIdsIncompleteService; }

int CNtfyServiceAlpha::PropertySheet(ui::Window* parent) {
  if (!IsCompletelyConfigured()) {
    ShowMessage(GetIncompleteConfigMessageId(), parent);
    const auto choose = ServiceUiOf(kTypeAlpha).choose_provider;
    const int chosen = choose != nullptr ? choose(*this, parent) : ui::kCancel;
    if (chosen != ui::kOk) return chosen;
  }
  return CNtfyService::PropertySheet(parent);
}

}  // namespace alerting
