// SPDX-License-Identifier: MIT
// The user and response panel functions.
#include "alerting/alerting.h"
#include "alerting/api/call.h"
#include "alerting/responses/alert_page.h"

using namespace alerting;  // NOLINT: exports speak the library's language

namespace {

std::uint32_t UpdatePanel(CAlertPage* panel) {
  return CallWithList<std::uint32_t>(0, [&] { return panel != nullptr && panel->UpdatePanelData(); });
}

std::int32_t ResponsePanelCount(std::int32_t index) {
  return CallOnService<std::int32_t>(index,
                                     [](CNtfyService& service) { return service.GetResponsePanelCount(); });
}

}  // namespace

extern "C" {

std::int32_t UserGetAddServicePanelCount(std::int32_t index) {
  return CallOnService<std::int32_t>(index,
                                     [](CNtfyService& service) { return service.GetAddUserPanelCount(); });
}

std::uint32_t UserUpdatePanelData(CAlertPage* panel) { return UpdatePanel(panel); }

std::uint32_t UserServiceUserIsConfigured(std::int32_t index, GUID user) {
  return CallOnService<std::uint32_t>(index,
                                      [&](CNtfyService& service) { return service.IsUserConfigured(user); });
}

std::uint32_t UserServiceUserDelete(std::int32_t index, GUID user) {
  return CallOnService<std::uint32_t>(index, [&](CNtfyService& service) { return service.DeleteUser(user); });
}

std::int32_t ResponseGetAddServicePanelCount(std::int32_t index) { return ResponsePanelCount(index); }

std::int32_t ResponseGetPropertyPanelCount(std::int32_t index) { return ResponsePanelCount(index); }

std::uint32_t ResponseUpdatePanelData(CAlertPage* panel) { return UpdatePanel(panel); }

std::uint32_t ResponseUpdatePropertyPanelData(CAlertPage* panel) { return UpdatePanel(panel); }

}  // extern "C"
