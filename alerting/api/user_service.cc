// SPDX-License-Identifier: MIT
// The user and response panel functions.
#include "alerting/alert_page.h"
#include "alerting/alerting.h"
#include "alerting/api/call.h"
#include "alerting/sheets/user_sheet.h"

using namespace alerting;  // NOLINT: exports speak the library's language

namespace {

std::uint32_t UpdatePanel(CAlertPage* panel) {
  return CallWithList<std::uint32_t>(0, [&] { return panel != nullptr && panel->UpdatePanelData(); });
}

std::int32_t ResponsePanelCount(std::int32_t index) {
  return CallOnService<std::int32_t>(index,
                                     [](CNtfyService& service) { return service.GetResponsePanelCount(); });
}

CAlertPage* WithHost(CAlertPage* panel, ui::Window* host) {
  if (panel != nullptr) panel->SetHostDialog(host);
  return panel;
}

CAlertPage* ResponsePanel(std::int32_t index, std::int32_t panel, ALERTRESPREC* response,
                          std::uint32_t wizard_buttons, ui::Window* host) {
  return CallOnService<CAlertPage*>(index, [&](CNtfyService& service) {
    return WithHost(service.CreateResponsePanel(panel, response, wizard_buttons), host);
  });
}

}  // namespace

extern "C" {

std::int32_t UserGetAddServicePanelCount(std::int32_t index) {
  return CallOnService<std::int32_t>(index,
                                     [](CNtfyService& service) { return service.GetAddUserPanelCount(); });
}

CAlertPage* UserGetAddServicePanel(std::int32_t index, std::int32_t panel, GUID user,
                                   std::uint32_t wizard_buttons, ui::Window* host) {
  return CallOnService<CAlertPage*>(index, [&](CNtfyService& service) {
    return WithHost(service.CreateAddUserPanel(panel, user, wizard_buttons), host);
  });
}

std::uint32_t UserUpdatePanelData(CAlertPage* panel) { return UpdatePanel(panel); }

std::int32_t UserServicePropertySheet(ui::Window* parent, std::int32_t index, GUID user) {
  return CallOnService<std::int32_t>(
      index, [&](CNtfyService& service) { return RunUserSheet(service, user, parent); });
}

std::uint32_t UserServiceTestDialog(ui::Window* parent, std::int32_t index, GUID user) {
  return CallOnService<std::uint32_t>(
      index, [&](CNtfyService& service) { return service.TestDialog(user, parent); });
}

std::uint32_t UserServiceUserIsConfigured(std::int32_t index, GUID user) {
  return CallOnService<std::uint32_t>(index,
                                      [&](CNtfyService& service) { return service.IsUserConfigured(user); });
}

std::uint32_t UserServiceUserDelete(std::int32_t index, GUID user) {
  return CallOnService<std::uint32_t>(index, [&](CNtfyService& service) { return service.DeleteUser(user); });
}

std::int32_t ResponseGetAddServicePanelCount(std::int32_t index) { return ResponsePanelCount(index); }

std::int32_t ResponseGetPropertyPanelCount(std::int32_t index) { return ResponsePanelCount(index); }

CAlertPage* ResponseGetAddServicePanel(std::int32_t index, std::int32_t panel, ALERTRESPREC* response,
                                       std::uint32_t wizard_buttons, ui::Window* host) {
  CAlertPage* made = ResponsePanel(index, panel, response, wizard_buttons, host);
  if (made != nullptr) made->SetAddingMark(1);
  return made;
}

CAlertPage* ResponseGetPropertyPanel(std::int32_t index, std::int32_t panel, ALERTRESPREC* response,
                                     ui::Window* host) {
  return ResponsePanel(index, panel, response, 0, host);
}

std::uint32_t ResponseUpdatePanelData(CAlertPage* panel) { return UpdatePanel(panel); }

std::uint32_t ResponseUpdatePropertyPanelData(CAlertPage* panel) { return UpdatePanel(panel); }

}  // extern "C"
