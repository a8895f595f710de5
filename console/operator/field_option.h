// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace console_operator {

enum class FieldKind {
  kText,    ///< one line
  kLines,   ///< text that may have line breaks
  kSecret,  ///< what nobody may read: neither shown in messages nor given on a command line
  kFlag,    ///< a box: yes or no
  kChoice,  ///< an item of a list, or an option of a group of buttons
};

/// A field of a window, and the option of a command line that fills it in.
struct FieldOption {
  const char* option;  ///< "--server"
  FieldKind kind;
  const char* help;
  /// Labels of the field; windows of one family may call it differently. A secret that is typed twice has its second
  /// field behind the first.
  std::vector<std::string> labels;
  /// The page of its sheet; "" in dialogs.
  const char* page = "";
};

/// Which fields were given what, in the order in which they are filled in.
using FieldValues = std::vector<std::pair<const FieldOption*, std::string>>;

}  // namespace console_operator
