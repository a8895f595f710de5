// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/services/user_base.h"
#include "platform/ui/control.h"
#include "platform/ui/data_exchange.h"
#include "platform/ui/layout.h"

namespace alerting {

/// The three groups of a serial line: data bits, parity, stop bits. A stored value that no option stands for leaves its
/// group without a choice, and a group without a choice leaves the stored value.
struct SerialChoices {
  SerialChoices(ui::Form& page, int first_id);

  void Read(const ModemSettings& settings);
  void Take(ModemSettings& settings) const;
  void Exchange(ui::DataExchange& x);

  ui::RadioGroup data_bits, parity, stop_bits;

 private:
  int data_bits_choice_ = -1, parity_choice_ = -1, stop_bits_choice_ = -1;
};

}  // namespace alerting
