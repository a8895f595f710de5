// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

#include "alerting/frame/stores.h"
#include "platform/ui/lists.h"

/// Lists of modems, modem types, speeds and ports. Filling one empties it first. An item of a modem or type has a pointer
/// to its identity as its data; what it points to holds until the next list of that kind is filled, so a window refills
/// its list after it ran another one that has such a list.
namespace alerting {

namespace ui = platform::ui;

/// How many records a list shows at most.
inline constexpr std::size_t kMaxListedTypes = 5000;
inline constexpr std::size_t kMaxListedModems = 256;

/// The serial ports that a modem can be at.
inline constexpr int kComPorts = 4;
inline constexpr int kMaxBaud = 115200;

/// Adds every speed up to `max_baud` (below 1: up to 115200) with the number as the item's data, and selects
/// `selected`; nothing where it is none of them.
void FillBaudRateCombo(ui::ComboBox& combo, std::uint32_t selected, int max_baud = kMaxBaud);
/// The same with the ports COM1: to COM`count`:.
void FillComPortCombo(ui::ComboBox& combo, std::uint32_t selected, int count = kComPorts);

// Without any type or modem the fills below show their message.

/// Adds the modem types and selects the one of exactly that name, or of that identity; none where there is no such one.
void FillModemTypeCombo(ui::ComboBox& combo, std::string_view select_name = {});
void FillModemTypeComboByGuid(ui::ComboBox& combo, const GUID& type);
void FillModemTypeList(ui::ListBox& list, std::string_view select_name = {});
/// Gives the identity of the current item; false, and `id` as it was, when none is current.
bool GetSelectedGuid(const ui::ItemList& list, GUID& id);

/// Adds the four columns of a modem report: name, alert manager, port, speed.
void AddModemColumns(ui::ListView& list);
/// Adds the modems to a report of these columns, and selects and focuses the one of
/// that identity.
void FillModemListCtrl(ui::ListView& list, const GUID& selected);
/// The identity of a row; the null GUID for a row that is not there.
GUID ModemOfRow(const ui::ListView& list, int row);

}  // namespace alerting
