// SPDX-License-Identifier: MIT
#include "alerting/sheets/serial_choices.h"

#include <algorithm>
#include <array>

namespace alerting {
namespace {

// What the options of the groups stand for.
using Codes = std::array<std::uint32_t, 3>;
constexpr Codes kDataBits = {6, 7, 8}, kParity = {0, 2, 1}, kStopBits = {0, 1, 2};

int ChoiceOf(const Codes& codes, std::uint32_t value) {
  const auto* found = std::find(codes.begin(), codes.end(), value);
  return found != codes.end() ? static_cast<int>(found - codes.begin()) : -1;
}

void TakeChoice(const Codes& codes, int choice, std::uint32_t& value) {
  if (choice >= 0) value = codes.at(static_cast<std::size_t>(choice));
}

}  // namespace

SerialChoices::SerialChoices(ui::Form& page, int first_id)
    : data_bits(page, first_id, "Data Bits", {"&6", "&7", "&8"}),
      parity(page, first_id + 1, "Parity", {"&None", "&Even", "&Odd"}),
      stop_bits(page, first_id + 2, "Stop Bits", {"&1", "1.&5", "&2"}) {}

void SerialChoices::Read(const ModemSettings& settings) {
  data_bits_choice_ = ChoiceOf(kDataBits, settings.dataBits);
  parity_choice_ = ChoiceOf(kParity, settings.parityCode);
  stop_bits_choice_ = ChoiceOf(kStopBits, settings.stopBitsCode);
}

void SerialChoices::Take(ModemSettings& settings) const {
  TakeChoice(kDataBits, data_bits_choice_, settings.dataBits);
  TakeChoice(kParity, parity_choice_, settings.parityCode);
  TakeChoice(kStopBits, stop_bits_choice_, settings.stopBitsCode);
}

void SerialChoices::Exchange(ui::DataExchange& x) {
  x.Radio(data_bits, data_bits_choice_);
  x.Radio(parity, parity_choice_);
  x.Radio(stop_bits, stop_bits_choice_);
}

}  // namespace alerting
