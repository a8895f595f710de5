// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace site {

/// How numbers are dialed: what goes before a number of the same area, of another area, of another country. The library
/// edits them (RulesDialog) and leaves their keeping to the console: `console.json` in the data directory.
struct DialingRules {
  std::string same_area, long_distance, international;
};

DialingRules ReadDialingRules();
/// "" or why they cannot be kept.
std::string WriteDialingRules(const DialingRules& rules);

}  // namespace site
