// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lab {

/// One command of a line for a modem: "DT5550100" is D with "T5550100", "&F" is &F, "S7=45" is S with "7=45".
struct AtCommand {
  std::string name;
  std::string argument;
};

/// What stands behind "AT" (ITU-T V.250 and the habits of modems before it). Nothing for a line with what is no command.
/// Spaces mean nothing; a D takes the rest of the line.
std::optional<std::vector<AtCommand>> ParseAtLine(std::string_view line);

/// What stands behind D.
struct DialString {
  std::vector<std::string> groups;  ///< the digits between pauses
  int pauses = 0;                   ///< commas
  bool stays_in_commands = false;   ///< it ended with ';'
};

DialString ParseDialString(std::string_view argument);

}  // namespace lab
