// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace platform::ui {

class CheckBox;
class ComboBox;
class Edit;
class Form;
class ItemList;
class RadioGroup;

using ItemData = std::uintptr_t;

/// Binds members to controls, both ways. After a refused value nothing more is exchanged.
class DataExchange {
 public:
  DataExchange(Form& form, bool save) : form_(form), save_(save) {}

  bool Failed() const { return failed_; }

  void Text(Edit& edit, std::string& value);
  /// A text within the field's limit. A longer one, which the program may have put there, shows "Please enter no more than
  /// %1 characters." with the limit put in and is refused as an integer is.
  void LimitedText(Edit& edit, std::string& value);
  void Text(ComboBox& combo, std::string& value);
  void Check(CheckBox& box, bool& value);
  void Radio(RadioGroup& group, int& index);
  /// An integer from `lower` to `upper`. Anything else shows "Please enter an integer between %1 and %2."
  /// with the bounds put in, moves the focus to the field, selects its text, and fails.
  void Integer(Edit& edit, std::uint32_t& value, std::uint32_t lower, std::uint32_t upper);
  void Integer(Edit& edit, std::int32_t& value, std::int32_t lower, std::int32_t upper);
  /// The data of the current item; absent when no item is current, and no item has data that is absent.
  void Item(ItemList& list, std::optional<ItemData>& value);
  /// The bits of `mask`: all set or none.
  void Bits(CheckBox& box, std::uint32_t& flags, std::uint32_t mask);

 private:
  void Refuse(Edit& edit, const std::string& why);
  void IntegerBetween(Edit& edit, std::int64_t& value, std::int64_t lower, std::int64_t upper);

  Form& form_;
  bool save_;
  bool failed_ = false;
};

}  // namespace platform::ui
