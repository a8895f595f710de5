// SPDX-License-Identifier: MIT
#pragma once

#include <array>

#include "alerting/frame/stores.h"
#include "platform/ui/lists.h"

/// The SNMP managers that receive traps.
namespace alerting {

inline constexpr std::size_t kMaxSnmpManagers = 100;

/// The managers as last loaded; rows of the list point into it.
struct SnmpManagerTable {
  std::array<ALRTUSR_SNMPSERVICEREC, kMaxSnmpManagers> managers;
  std::size_t count = 0;
};

SnmpManagerTable& TheSnmpManagers();

/// Adds the four columns of the list.
void AddSnmpManagerColumns(platform::ui::ListView& list);

/// Fills the list with the managers, the first 100, read again from the store when `reload` says so. False, without a
/// message and with an empty list, when the store has none.
bool FillSnmpManagerList(platform::ui::ListView& list, bool reload);

/// The record behind a row of the list; null for no row.
ALRTUSR_SNMPSERVICEREC* SnmpManagerOfRow(const platform::ui::ListView& list, int row);

/// Deletes a manager at once. False after a message.
bool DeleteSnmpManager(const GUID& manager);

}  // namespace alerting
