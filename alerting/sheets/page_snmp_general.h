// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/sheets/general_page.h"
#include "platform/ui/lists.h"

namespace alerting {

/// General page of the SNMP Trap service: whom traps are sent to. The managers are stored at once, whatever becomes of the
/// sheet.
class CPropPgSNMPGeneral : public CGeneralPage {
 public:
  CPropPgSNMPGeneral();

 private:
  void OnInitDialog() override;

  void OnAdd();
  void OnProperties();
  void OnRemove();
  void OnClickInList();
  void OnKeyInList(ui::Key key);
  void Refill();
  void EnableRowButtons(bool on);

  ui::ListView managers_;
  ui::Button add_, remove_, properties_;
};

}  // namespace alerting
