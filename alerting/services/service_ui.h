// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "alerting/services/ntfy_service.h"

namespace alerting {

/// Makes the windows of one service type. They belong to layers above the services, so the services reach
/// them through this table alone. A null entry: the type has no such window.
struct ServiceUi {
  int (*property_sheet)(CNtfyService& service, ui::Window* parent) = nullptr;
  CAlertPage* (*response_panel)(CNtfyService& service, ALERTRESPREC* response,
                                std::uint32_t wizard_buttons) = nullptr;
  CAlertPage* (*user_panel)(CNtfyService& service, const GUID& user, std::uint32_t wizard_buttons) = nullptr;
  /// Tests the service; true when the dialog ended with OK.
  bool (*site_test)(CNtfyService& service, ui::Window* parent) = nullptr;
  bool (*user_test)(CNtfyService& service, const GUID& user, ui::Window* parent) = nullptr;
  bool (*select_user)(CNtfyService& service, ui::Window* parent, std::string& name, GUID& user) = nullptr;
  bool (*send_test)(CNtfyService& service, const GUID& target, const char* message,
                    const char* subject_or_file, std::uint16_t priority, ui::Window* parent) = nullptr;
  /// Edits the service's backup modem link; dial-out types only.
  int (*backup_modem_sheet)(CNtfyService& service, ui::Window* parent) = nullptr;
  /// Chooses the service's paging provider; alphanumeric pagers only.
  int (*choose_provider)(CNtfyService& service, ui::Window* parent) = nullptr;
};

using ServiceUiTable = std::array<ServiceUi, kServiceTypes.size()>;

/// Puts the table in place; a load step.
void SetServiceUiTable(const ServiceUiTable& table);
const ServiceUi& ServiceUiOf(std::uint32_t type_code);

}  // namespace alerting
