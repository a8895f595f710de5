// SPDX-License-Identifier: MIT
#include "alerting/services/service_ui.h"

namespace alerting {
namespace {

ServiceUiTable& Table() {
  static ServiceUiTable table{};
  return table;
}

}  // namespace

void SetServiceUiTable(const ServiceUiTable& table) { Table() = table; }

const ServiceUi& ServiceUiOf(std::uint32_t type_code) { return Table().at(type_code); }

}  // namespace alerting
