// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "alerting/services/ntfy_service_alpha.h"
#include "alerting/sheets/general_page.h"
#include "alerting/ui/filtered_edit.h"
#include "platform/ui/spin.h"

// General pages of the two pagers.

namespace alerting {

/// A number that is typed or stepped; `wraps`: round its ends.
struct NumberField {
  NumberField(ui::Form& page, int id, std::string label, int lower, int upper, std::size_t digits,
              bool wraps);

  void Exchange(ui::DataExchange& x, std::uint32_t& value);
  ui::LayoutNode Place() { return ui::Characters(kCharacters, ui::Field(edit)); }

  static constexpr int kCharacters = 6;
  ui::Edit edit;
  ui::Spin spin;
};

/// How long the modem waits after it dialed.
class CPropPgNumericPageGeneral : public CGeneralPage {
 public:
  CPropPgNumericPageGeneral();

 private:
  void Exchange(ui::DataExchange& x) override;
  void TakeFields(const GeneralFields& fields) override { delay_seconds_ = fields.dialDelay.value_or(0); }
  void CollectFields(GeneralFields& fields) const override { fields.dialDelay = delay_seconds_; }

  std::uint32_t delay_seconds_ = 0;
  NumberField delay_;
};

/// The paging provider: its fields as the service took them over, and the button that chooses another.
class CPropPgAlphaGeneral2 : public CGeneralPage {
 public:
  CPropPgAlphaGeneral2();

 private:
  CNtfyServiceAlpha& Pager() const { return static_cast<CNtfyServiceAlpha&>(Service()); }
  void Exchange(ui::DataExchange& x) override;
  void TakeFields(const GeneralFields&) override { ReadProvider(); }
  bool SaveFields() override;
  void ReadProvider();
  void OnSetProvider();

  CNtfyServiceAlpha::ProviderFields provider_;
  ui::Edit company_, location_;
  NumberField text_length_;
  CFilteredEdit phone_;
  ui::Button set_provider_;
};

}  // namespace alerting
