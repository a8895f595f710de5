// SPDX-License-Identifier: MIT
#include "platform/ui/data_exchange.h"

#include <charconv>
#include <optional>
#include <string_view>

#include "platform/ui/edit.h"
#include "platform/ui/form.h"
#include "platform/ui/lists.h"
#include "platform/ui/message.h"

namespace platform::ui {
namespace {

std::optional<std::int64_t> ParseNumber(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return std::nullopt;
  text = text.substr(first, text.find_last_not_of(' ') - first + 1);
  std::int64_t value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return value;
}

}  // namespace

void DataExchange::Text(Edit& edit, std::string& value) {
  if (failed_) return;
  if (save_) {
    value = edit.Text();
  } else {
    edit.SetText(value);
  }
}

void DataExchange::LimitedText(Edit& edit, std::string& value) {
  if (save_ && !failed_ && edit.Text().size() > edit.Limit())
    Refuse(edit, "Please enter no more than " + std::to_string(edit.Limit()) + " characters.");
  Text(edit, value);
}

void DataExchange::Text(ComboBox& combo, std::string& value) {
  if (failed_) return;
  if (save_) {
    value = combo.Text();
  } else if (combo.Editable()) {
    combo.SetText(value);
  } else {
    combo.Select(combo.FindText(value));
  }
}

void DataExchange::Check(CheckBox& box, bool& value) {
  if (failed_) return;
  if (save_) {
    value = box.Checked();
  } else {
    box.SetChecked(value);
  }
}

void DataExchange::Radio(RadioGroup& group, int& index) {
  if (failed_) return;
  if (save_) {
    index = group.Index();
  } else {
    group.SetIndex(index);
  }
}

void DataExchange::Item(ItemList& list, std::optional<ItemData>& value) {
  if (failed_) return;
  if (!save_) return list.Select(value ? list.FindData(*value) : -1);
  value = list.Current() >= 0 ? std::optional(list.Data(list.Current())) : std::nullopt;
}

void DataExchange::Bits(CheckBox& box, std::uint32_t& flags, std::uint32_t mask) {
  if (failed_) return;
  if (!save_) return box.SetChecked((flags & mask) == mask);
  flags = box.Checked() ? flags | mask : flags & ~mask;
}

void DataExchange::Integer(Edit& edit, std::uint32_t& value, std::uint32_t lower, std::uint32_t upper) {
  std::int64_t number = value;
  IntegerBetween(edit, number, lower, upper);
  value = static_cast<std::uint32_t>(number);
}

void DataExchange::Integer(Edit& edit, std::int32_t& value, std::int32_t lower, std::int32_t upper) {
  std::int64_t number = value;
  IntegerBetween(edit, number, lower, upper);
  value = static_cast<std::int32_t>(number);
}

void DataExchange::IntegerBetween(Edit& edit, std::int64_t& value, std::int64_t lower, std::int64_t upper) {
  if (failed_) return;
  if (!save_) return edit.SetText(std::to_string(value));
  const std::optional<std::int64_t> number = ParseNumber(edit.Text());
  if (number && *number >= lower && *number <= upper)
    value = *number;
  else
    Refuse(edit, "Please enter an integer between " + std::to_string(lower) + " and " +
                     std::to_string(upper) + ".");
}

void DataExchange::Refuse(Edit& edit, const std::string& why) {
  failed_ = true;
  MessageBox(why, Buttons::kOk, MessageIcon::kWarning, &form_);
  edit.SetFocus();
  edit.SetSelection(0, edit.Text().size());
}

}  // namespace platform::ui
