// SPDX-License-Identifier: MIT
#include "alerting/telephony/modem_lists.h"

#include <array>
#include <string>

#include "alerting/frame/app.h"
#include "alerting/frame/messages.h"
#include "alerting/telephony/modems.h"
#include "platform/ui/form.h"

namespace alerting {
namespace {

constexpr int kBaudRates[] = {110,   300,   600,   1200,  2400,  4800,  9600,
                              14400, 19200, 28800, 38400, 56000, 57600, 115200};

// What items point to.
std::array<GUID, kMaxListedTypes> g_type_ids;
std::array<GUID, kMaxListedModems> g_modem_ids;

/// Calls `add(record, data)` for each record of a store, as far as there is room for identities.
template <std::size_t kRoom, class Add>
void ForEachModem(ModemStoreOf store, std::array<GUID, kRoom>& ids, ui::Window& owner, Add&& add) {
  EnsureStoresOpen();
  ALRTSERV_MODEM record{};
  Status status = store().DBAlertRecFindFirst(kModemByIdentity, 0, nullptr, record);
  if (status != kOk) return ShowMessage(kIdsNoModems, &owner);
  for (std::size_t i = 0; i < kRoom && status == kOk; ++i, status = store().DBAlertRecFindNext(record)) {
    ids[i] = record.guid;
    add(record, reinterpret_cast<ui::ItemData>(&ids[i]));
  }
}

template <class IsWanted>
void FillTypes(ui::ItemList& list, IsWanted&& is_wanted) {
  list.RemoveAll();
  ui::ItemData wanted = 0;
  ForEachModem(ModemTypeStore, g_type_ids, list.OwnerForm(),
               [&](const ALRTSERV_MODEM& type, ui::ItemData id) {
                 list.Add(type.name.View(), id);
                 if (is_wanted(type)) wanted = id;
               });
  list.Select(list.FindData(wanted));
}

void FillTypesByName(ui::ItemList& list, std::string_view name) {
  FillTypes(list, [name](const ALRTSERV_MODEM& type) { return !name.empty() && type.name.View() == name; });
}

std::string PortName(std::uint32_t port) { return "COM" + std::to_string(port); }

void AddNumber(ui::ComboBox& combo, const std::string& text, int number) {
  combo.Add(text, static_cast<ui::ItemData>(number));
}

}  // namespace

void FillBaudRateCombo(ui::ComboBox& combo, std::uint32_t selected, int max_baud) {
  combo.RemoveAll();
  for (const int rate : kBaudRates)
    if (rate <= (max_baud < 1 ? kMaxBaud : max_baud)) AddNumber(combo, std::to_string(rate), rate);
  combo.Select(combo.FindData(selected));
}

void FillComPortCombo(ui::ComboBox& combo, std::uint32_t selected, int count) {
  combo.RemoveAll();
  for (int port = 1; port <= count; ++port)
    AddNumber(combo, PortName(static_cast<std::uint32_t>(port)) + ":", port);
  combo.Select(combo.FindData(selected));
}

void FillModemTypeCombo(ui::ComboBox& combo, std::string_view select_name) {
  FillTypesByName(combo, select_name);
}
void FillModemTypeList(ui::ListBox& list, std::string_view select_name) {
  FillTypesByName(list, select_name);
}

void FillModemTypeComboByGuid(ui::ComboBox& combo, const GUID& type) {
  FillTypes(combo, [&type](const ALRTSERV_MODEM& record) { return record.guid == type; });
}

bool GetSelectedGuid(const ui::ItemList& list, GUID& id) {
  if (list.Current() < 0) return false;
  id = *reinterpret_cast<const GUID*>(list.Data(list.Current()));
  return true;
}

void AddModemColumns(ui::ListView& list) {
  list.AddColumn("Modem", 165);
  list.AddColumn("Server", 100);
  list.AddColumn("Port", 45);
  list.AddColumn("Baud", 45);
}

void FillModemListCtrl(ui::ListView& list, const GUID& selected) {
  list.RemoveAllRows();
  ForEachModem(ModemStore, g_modem_ids, list.OwnerForm(), [&](const ALRTSERV_MODEM& modem, ui::ItemData id) {
    const int row = list.AddRow({std::string(modem.name.View()), std::string(modem.managerName.View()),
                                 PortName(modem.comPort), std::to_string(modem.baudRate)},
                                id);
    if (modem.guid != selected) return;
    list.SelectRow(row);
    list.FocusRow(row);
  });
}

GUID ModemOfRow(const ui::ListView& list, int row) {
  const auto* id = reinterpret_cast<const GUID*>(list.RowData(row));
  return id != nullptr ? *id : kNullGuid;
}

}  // namespace alerting
